#pragma once

#include <properties/Export.h>

#include <QTreeWidget>

/** The tree of the panel: draws a light grid over its rows. */
class PROPERTIES_EXPORT TTreeWidget : public QTreeWidget
{
    Q_OBJECT

public:
    explicit TTreeWidget(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};
