#pragma once

#include <QList>
#include <QStringList>

class QGraphicsView;
class TItemScene;

/** A printed-circuit board. */
class TBoard
{
public:
    QGraphicsView* View() const;
    TItemScene* Scene() const;
    bool RefDesVisible() const;
    bool ValuesVisible() const;
    bool ConnectivityEnabled() const;
    void UpdateRats(const QStringList& nets);
    void UpdateRats(const QList<unsigned short>& components);
    void UpdatePadNets(const QList<unsigned short>& components);
    void RatPriority(int level);

protected:
    QGraphicsView* view = nullptr;
    TItemScene* scene = nullptr;
    bool refDesVisible = true;
    bool valuesVisible = true;
    bool connectivityEnabled = true;
};
