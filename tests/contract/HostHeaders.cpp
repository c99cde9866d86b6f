#include "tests/contract/HostHeaders.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

using HostHeaders::Header;
using HostHeaders::Member;

const auto dotall = QRegularExpression::DotMatchesEverythingOption;

/** What stands before the braces or the semicolon, and between the braces. */
struct Statement
{
    QString head;
    QString body;
};

QVector<Statement> Statements(const QString& text)
{
    static const QRegularExpression endsWithItsBody(QStringLiteral(R"(^\s*namespace\b|\()"));
    QVector<Statement> statements;
    Statement current;
    int depth = 0;
    for (const QChar letter : text) {
        if (letter == QLatin1Char('{') && depth++ == 0) {
            continue;
        }
        const bool closes = letter == QLatin1Char('}') && --depth == 0;
        if (depth > 0) {
            current.body += letter;
        } else if (closes ? current.head.contains(endsWithItsBody) : letter == QLatin1Char(';')) {
            current.head = current.head.simplified();
            statements.append(current);
            current = {};
        } else if (!closes) {
            current.head += letter;
        }
    }
    return statements;
}

QString WithoutConst(QString type)
{
    return type.remove(QRegularExpression(QStringLiteral(R"(\bconst\b)"))).simplified();
}

/** The types of a list of named arguments, without references and constness. */
QStringList ArgumentTypes(const QString& arguments)
{
    static const QRegularExpression argument(QStringLiteral(R"((?:[^,<]|<[^>]*>)+)"));
    static const QRegularExpression nameBehind(QStringLiteral(R"(\s*\b\w+$)"));
    QStringList types;
    auto matches = argument.globalMatch(arguments);
    while (matches.hasNext()) {
        types.append(WithoutConst(matches.next().captured()).remove(nameBehind).remove(QLatin1Char('&')).trimmed());
    }
    return types;
}

/** The type of a value that is returned: a reference only if it can be written to. */
QString ReturnType(const QString& type)
{
    const QString bare = WithoutConst(type);
    const bool readOnly = type.startsWith(QLatin1String("const ")) && bare.endsWith(QLatin1Char('&'));
    return bare == QLatin1String("void") ? QString() : readOnly ? bare.left(bare.size() - 1) : bare;
}

class Reader
{
public:
    Reader(Header& ofHeader, const QStringList& derived) : header(ofHeader), derivedFrom(derived) {}

    void ReadTop(const QString& text)
    {
        static const QRegularExpression scope(
            QStringLiteral(R"(^(class|struct|namespace) (\w+)(?: : public (\w+))?$)"));
        for (const Statement& statement : Statements(text)) {
            const QRegularExpressionMatch match = scope.match(statement.head);
            if (match.hasMatch() && !statement.body.isEmpty()) {
                const QString base = match.captured(3);
                header.declares.append(match.captured(2) + (base.isEmpty() ? QString() : QStringLiteral(" : ") + base));
                ReadScope(match.captured(2), statement.body, match.captured(1) == QLatin1String("class"));
            }
        }
    }

private:
    void ReadScope(const QString& scope, const QString& body, bool isClass)
    {
        static const QRegularExpression label(QStringLiteral(R"(^(public|protected|private): ?)"));
        QString access = isClass ? QStringLiteral("private") : QStringLiteral("public");
        for (Statement statement : Statements(body)) {
            for (auto match = label.match(statement.head); match.hasMatch(); match = label.match(statement.head)) {
                access = match.captured(1);
                statement.head.remove(0, match.capturedLength());
            }
            const bool isOffered = access == QLatin1String("public")
                                   || (access == QLatin1String("protected") && derivedFrom.contains(scope)
                                       && statement.head.contains(QLatin1Char('(')));
            if (isOffered) {
                ReadMember(scope, statement);
            }
        }
    }

    void ReadMember(const QString& scope, const Statement& statement)
    {
        static const QRegularExpression ignored(QStringLiteral(R"(^~|^friend |^using |\boverride\b)"));
        static const QRegularExpression enumeration(QStringLiteral(R"(^enum (?:class )?(\w*) ?(?:: \w+)?$)"));
        static const QRegularExpression constant(QStringLiteral(R"(^(?:static )?constexpr \w+ (\w+) = (.+)$)"));
        static const QRegularExpression function(QStringLiteral(R"(^(?:static )?(.*?) ?(\w+)\((.*)\)( const)?$)"));
        static const QRegularExpression field(QStringLiteral(R"(^(.+?) (\w+)(?: = .*)?$)"));
        const QString& head = statement.head;
        if (ignored.match(head).hasMatch()) {
            return;
        }
        if (const auto match = enumeration.match(head); match.hasMatch()) {
            ReadEnumeration(scope, match.captured(1), statement.body);
        } else if (const auto value = constant.match(head); value.hasMatch()) {
            Add({scope, value.captured(1), value.captured(1) + QStringLiteral(" = ") + value.captured(2), {}, {}});
        } else if (const auto called = function.match(head); called.hasMatch()) {
            AddFunction(scope, called);
        } else if (const auto data = field.match(head); data.hasMatch()) {
            Add({scope, data.captured(2), data.captured(1) + QLatin1Char(' ') + data.captured(2), {}, {}});
        } else {
            Add({scope, head, QStringLiteral("what is not understood: ") + head, {}, {}});
        }
    }

    void ReadEnumeration(const QString& scope, const QString& name, const QString& body)
    {
        if (!name.isEmpty()) {
            Add({scope, name, QStringLiteral("enum ") + name, {}, {}});
        }
        int next = 0;
        for (const QString& part : body.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
            const QString enumerator = part.section(QLatin1Char('='), 0, 0).trimmed();
            const QString given = part.section(QLatin1Char('='), 1).trimmed();
            if (!enumerator.isEmpty()) {
                const QString value = given.isEmpty() ? QString::number(next) : given;
                next = value.toInt(nullptr, 0) + 1;
                Add({scope, enumerator, enumerator + QStringLiteral(" = ") + value, {}, name});
            }
        }
    }

    void AddFunction(const QString& scope, const QRegularExpressionMatch& match)
    {
        const QString type = ReturnType(match.captured(1));
        const QString name = match.captured(2);
        const QStringList types = ArgumentTypes(match.captured(3));
        const QString call = name + QLatin1Char('(') + types.join(QStringLiteral(", ")) + QLatin1Char(')');
        const QString spelling = type.isEmpty() ? call : type + QLatin1Char(' ') + call;
        const QString symbol = HostHeaders::Symbol(scope + QStringLiteral("::") + call) + match.captured(4);
        const bool isOfConstant = !match.captured(4).isEmpty() && IsSpelled(scope, type + QStringLiteral("& ") + call);
        Add({scope, name, isOfConstant ? QString() : spelling, symbol, {}});
    }

    bool IsSpelled(const QString& scope, const QString& spelling) const
    {
        return std::any_of(header.members.cbegin(), header.members.cend(),
                           [&](const Member& member) { return member.scope == scope && member.spelling == spelling; });
    }

    void Add(const Member& member) { header.members.append(member); }

    Header& header;
    const QStringList& derivedFrom;
};

} // namespace

Header HostHeaders::Read(const QString& name, const QString& text, const QStringList& derivedFrom)
{
    static const QRegularExpression include(
        QStringLiteral("#include <((?:workspace|graphics|objects|application)/\\w+\\.h)>"));
    static const QRegularExpression comment(QStringLiteral(R"(/\*.*?\*/|//[^\n]*)"), dotall);
    static const QRegularExpression directive(QStringLiteral("^#[^\n]*$"), QRegularExpression::MultilineOption);
    Header header;
    header.name = name;
    auto includes = include.globalMatch(text);
    while (includes.hasNext()) {
        header.includes.append(includes.next().captured(1));
    }
    Reader(header, derivedFrom).ReadTop(QString(text).remove(comment).remove(directive));
    return header;
}

QString HostHeaders::Symbol(QString printed)
{
    static const QRegularExpression scope(QStringLiteral(R"((?<=[(, <])T\w+::)"));
    static const QRegularExpression constOfArgument(QStringLiteral(R"( const(?=[&*]))"));
    static const QRegularExpression plainUnsigned(QStringLiteral(R"(\bunsigned(?! (int|char|short)))"));
    return printed.remove(scope)
        .remove(constOfArgument)
        .remove(QLatin1Char('&'))
        .replace(QStringLiteral("quint8"), QStringLiteral("unsigned char"))
        .replace(QStringLiteral("quint16"), QStringLiteral("unsigned short"))
        .replace(plainUnsigned, QStringLiteral("unsigned int"));
}
