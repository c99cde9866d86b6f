#pragma once

#include <workspace/Osmirel.h>

#include <QListWidget>

class TLayerManager;

/** The layers of a board from its top to its bottom, each with its colour, and a box that shows or hides it. */
class TLayerList : public QListWidget
{
    Q_OBJECT

public:
    explicit TLayerList(QWidget* parent = nullptr);

    /** Lists the layers of a table, which is the board's and must outlive the list or be replaced; null lists none. */
    void SetLayers(TLayerManager* newLayers);

    /** Shows or hides the layer of that name, if there is one. */
    void ShowLayer(const QString& name, bool on);
    /** The names of all layers, from the top down. */
    QStringList Names() const;

signals:
    void sigVisibilityChanged(Osmirel::Layer layer, bool visible);

private slots:
    void slotItemChanged(QListWidgetItem* item);

private:
    TLayerManager* layers = nullptr;
};
