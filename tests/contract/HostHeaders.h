#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/** What the headers of the contract host declare, spelled as docs/embedding.md does. */
namespace HostHeaders {

/** Something that a class or namespace offers: a function, an enumerator, a constant, a field or an enumeration. */
struct Member
{
    QString scope; ///< The class or namespace.
    QString name;
    QString spelling;    ///< "float PenWidth()", "SetPenWidth(float)", "Lock = 512", "QColor color", "enum TFlag".
    QString symbol;      ///< Of a function, as the linker names it, without references and constness of its arguments.
    QString enumeration; ///< Of an enumerator, where that has a name.
};

struct Header
{
    QString name;         ///< "objects/TGraphicsPadItem.h"
    QStringList declares; ///< "TGraphicsPadItem : TGraphicsViaItem"
    QStringList includes; ///< Of the contract's own headers.
    QVector<Member> members;
};

/** Reads a header. Members are the public ones, and the protected functions of a class that the library derives from,
 *  without destructors and without what overrides a function of the toolkit. */
Header Read(const QString& name, const QString& text, const QStringList& derivedFrom);

/** A symbol as the linker prints it, spelled as that of a member. */
QString Symbol(QString printed);

} // namespace HostHeaders
