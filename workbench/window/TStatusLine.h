#pragma once

#include <QObject>

class QLabel;
class QPointF;
class QStatusBar;
class QStringList;
class TWorkspace;

/** The content of a status bar: the items of a document, what is not shown of it, the selection, and the cursor. */
class TStatusLine : public QObject
{
    Q_OBJECT

public:
    /** Owned by the bar. */
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
