#pragma once

#include <graphics/TGraphicsItem.h>

#include <QFont>

/** A free text. */
class TGraphicsTextItem : public TGraphicsItem
{
public:
    int type() const override;

    void SetText(const QString& newText);
    QFont& Font();
    const QFont& Font() const;
    bool IsVector() const;
    void SetVector(bool on);
    int Alignment() const;
    void SetAlignment(int alignmentFlags);
    float LineWidth() const;
    void SetLineWidth(float width);
    void SetMirrorH(bool on);
    void SetMirrorV(bool on);
    void UpdatePath(bool keepPlace);

protected:
    QString text;
    QFont font;
    bool vector = true;
    int alignment = Qt::AlignLeft;
    float lineWidth = 0;
    friend class TGraphicsPinItem;
};
