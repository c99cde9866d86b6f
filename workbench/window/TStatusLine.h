#pragma once

#include <QObject>

class QLabel;
class QPointF;
class QStatusBar;
class QStringList;
class TWorkspace;

/** What a status bar says: what a document holds, what is not shown of it, what is selected, and where the cursor is.
 */
class TStatusLine : public QObject
{
    Q_OBJECT

public:
    /** Belongs to the bar. */
    explicit TStatusLine(QStatusBar& bar);

    void ShowContent(const QString& summary);
    void ShowNotices(const QStringList& notices);
    void ShowSelected(const QString& summary);
    void ShowPosition(const QPointF& scenePoint, const TWorkspace& workspace);

private:
    QLabel* content;
    QLabel* notice;
    QLabel* selected;
    QLabel* position;
};
