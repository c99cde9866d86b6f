#pragma once

#include <QTreeWidget>

/** A page's row in the project tree: its name is in column 0. Owned by the tree. */
class TSchPage : public QTreeWidgetItem
{
public:
    static constexpr int nameColumn = 0;

    TSchPage(unsigned char ofNumber, const QString& name);

    unsigned char Number() const { return number; }
    QString Name() const { return text(nameColumn); }

private:
    unsigned char number;
};

/** A component's row in the project tree: its designator is in column 0, its name in column 1. Owned by the tree.
 */
class TPart : public QTreeWidgetItem
{
public:
    static constexpr int nameColumn = 1;

    TPart(unsigned short componentNumber, const QString& refDes, const QString& name);

    unsigned short ComponentNumber() const { return number; }
    QString Name() const { return text(nameColumn); }

private:
    unsigned short number;
};

/** The tree that shows a project's pages and parts. */
class TProjectTree : public QTreeWidget
{
    Q_OBJECT

public:
    explicit TProjectTree(QWidget* parent = nullptr);

    /** Append a row after the others of its kind. */
    TSchPage* AddPage(unsigned char number, const QString& name);
    TPart* AddPart(unsigned short componentNumber, const QString& refDes, const QString& name);

    const QList<TSchPage*>& Pages() const { return pages; }
    const QList<TPart*>& Parts() const { return parts; }
    /** The row of a page, or of a component; null if there is none. */
    TSchPage* Page(int number) const;
    TPart* Part(unsigned short componentNumber) const;

    /** The state of every row, one line each. */
    QString Dump() const;

private:
    QTreeWidgetItem* pageGroup;
    QTreeWidgetItem* partGroup;
    QList<TSchPage*> pages;
    QList<TPart*> parts;
};
