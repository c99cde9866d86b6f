#pragma once

#include <QMap>
#include <QPointF>
#include <QString>
#include <QStringList>

/**
 * The text of a board file, searched with patterns. It knows nothing of the importer, which must find what stands
 * there.
 */
class TBoardText
{
public:
    explicit TBoardText(const QString& fileName);

    int CountMatches(const QString& pattern) const;
    /** How many elements begin with the token, which is a pattern too. */
    int Count(const QString& token) const { return CountMatches("\\(" + token + "\\s"); }
    int CountNettedPads() const;

    /** The elements of a token that hold nothing deeper than lists of atoms, in the order of the file. */
    QStringList Elements(const QString& token) const;

    /** The names of the board's nets, by their numbers. */
    const QMap<int, QString>& Nets() const { return nets; }
    /** The name of the net that an element is on. */
    QString Net(const QString& element) const;

    /** The numbers of a list in an element. */
    static double Number(const QString& element, const QString& list);
    static QPointF Point(const QString& element, const QString& list);

private:
    QString text;
    QMap<int, QString> nets;
};
