#pragma once

#include <QUndoCommand>

class TPart;

/** An undo step of the application. */
class TUndoCommand : public QUndoCommand
{
public:
    enum : unsigned { ProjectTreeCategory = 8, PartCategory = 16, PageCategory = 32 };

    TUndoCommand();
    ~TUndoCommand() override;

    unsigned char PageToOpen() const;

protected:
    void AddCategory(unsigned bits);
    void SetPartToOpen(TPart* part);
    void SetPageToOpen(unsigned char page);

private:
    unsigned categories = 0;
    TPart* partToOpen = nullptr;
    unsigned char pageToOpen = 0;
};
