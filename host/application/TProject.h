#pragma once

#include <QMap>
#include <QString>

class TBoard;
class TSchematic;

/**
 * A schematic and a board that belong together; either may be missing. It owns neither: the application destroys them
 * after the project, or removes them first.
 */
class TProject
{
public:
    /** The kind of a project, which is its mode. */
    enum KindOfProject : int {
        Separate = 0, ///< Each document is edited on its own.
        InStep = 1,   ///< Schematic and board are kept in sync: nets are shown and rat lines recomputed.
    };

    TProject() = default;
    ~TProject();
    TProject(const TProject&) = delete;
    TProject& operator=(const TProject&) = delete;

    int Kind() const { return kind; }
    void SetKind(int newKind) { kind = newKind; }

    TBoard* Board() const { return board; }
    void SetBoard(TBoard* newBoard);
    TSchematic* Schematic() const { return schematic; }
    void SetSchematic(TSchematic* newSchematic);

    /** The values of tags, by name. */
    const QMap<QString, QString>& TagValues() const { return tagValues; }
    void SetTagValues(const QMap<QString, QString>& values) { tagValues = values; }

private:
    void Acquaint();

    int kind = Separate;
    TBoard* board = nullptr;
    TSchematic* schematic = nullptr;
    QMap<QString, QString> tagValues;
};
