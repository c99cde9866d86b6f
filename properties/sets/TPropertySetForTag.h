#pragma once

#include "properties/TPropertySet.h"

class TGraphicsTagItem;
class TGraphicsTextItem;
class TProject;
class TPropertyEnum;
class TPropertyFloatSpin;
class TPropertyText;

/** Edits the name of tags, and how they are drawn. Intended: the rows show the last tag's values, uncompared. */
class PROPERTIES_EXPORT TPropertySetForTag : public TPropertySet
{
    Q_OBJECT

public:
    /** Intended: the set is called "Tags", however many there are. Keeps the tags of @p selection; @p project holds
     * what they show. */
    TPropertySetForTag(const QList<TGraphicsItem*>& selection, TProject* project);

public Q_SLOTS:
    /** The stroke width in scene units. Intended: always written at once, so that it cannot be undone. */
    void SetLine(double width);
    void SetFontName(QString family);
    /** In points. */
    void SetFontSize(int points);
    /** A `Qt::AlignmentFlag`. */
    void SetAlign(int newAlignment);
    void SetName(QString newName);
    /** 0 for strokes, 1 for outlines. */
    void SetTrueTrue(int outlines);

private:
    void MakeRows(const TGraphicsTagItem& shown);

    QList<TGraphicsTagItem*> tags;
    QList<TGraphicsTextItem*> texts; ///< The same items, for the commands of texts.
    TProject* project;
    QPointer<TPropertyText> name;
    QPointer<TPropertyEnum> type;
    QPointer<TPropertyEnum> fontName;
    QPointer<TPropertyEnum> fontSize;
    QPointer<TPropertyEnum> alignment;
    QPointer<TPropertyFloatSpin> lineWidth;
};
