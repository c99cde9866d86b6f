#pragma once

#include <QMap>
#include <QString>

class TBoard;
class TSchematic;

/** A schematic and a board that belong together. */
class TProject
{
public:
    enum : int { InStep = 1 };

    int Kind() const;
    TBoard* Board() const;
    TSchematic* Schematic() const;
    QMap<QString, QString> TagValues() const;

protected:
    int kind = InStep;
    TBoard* board = nullptr;
    TSchematic* schematic = nullptr;
    QMap<QString, QString> tagValues;
};
