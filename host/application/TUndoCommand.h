#pragma once

#include <QUndoCommand>

/** The application's undo step: a toolkit command with a word of bits that tells what kinds of things it touches. */
class TUndoCommand : public QUndoCommand
{
public:
    explicit TUndoCommand(QUndoCommand* parent = nullptr) : QUndoCommand(parent) {}

    /** The category bits, 0 unless a command sets them in its constructor. */
    unsigned Categories() const { return categories; }

protected:
    void AddCategory(unsigned bit) { categories |= bit; }

private:
    unsigned categories = 0;
};
