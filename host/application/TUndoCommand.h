#pragma once

#include <QUndoCommand>

class TPart;

/** The application's undo step: a toolkit command with categories of what it changes, and with the part or page that
 * the application is to open after a redo or undo. */
class TUndoCommand : public QUndoCommand
{
public:
    /** Bits of the category word. */
    enum Category : unsigned {
        ProjectTreeCategory = 8, ///< An entry of the project tree was renamed, or a part is opened from it.
        PartCategory = 16,       ///< `PartToOpen` is to be opened.
        PageCategory = 32,       ///< A page is to be opened.
    };

    explicit TUndoCommand(QUndoCommand* parent = nullptr) : QUndoCommand(parent) {}

    /** The category bits, 0 unless a command sets them in its constructor. */
    unsigned Categories() const { return categories; }

    /** What the application is to open after the last redo or undo: null and page 0 for nothing. */
    TPart* PartToOpen() const { return partToOpen; }
    unsigned char PageToOpen() const { return pageToOpen; }

protected:
    void AddCategory(unsigned bit) { categories |= bit; }
    void SetPartToOpen(TPart* part) { partToOpen = part; }
    void SetPageToOpen(unsigned char page) { pageToOpen = page; }

private:
    unsigned categories = 0;
    TPart* partToOpen = nullptr;
    unsigned char pageToOpen = 0;
};
