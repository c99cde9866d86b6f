#pragma once

#include <QTreeWidgetItem>

/** A part's row in the project tree. */
class TPart : public QTreeWidgetItem
{
public:
    static constexpr int nameColumn = 1;
};

/** A page's row in the project tree. */
class TSchPage : public QTreeWidgetItem
{
public:
    static constexpr int nameColumn = 0;
};
