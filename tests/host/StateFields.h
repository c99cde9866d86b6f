#pragma once

#include <graphics/engine/TStateText.h>

#include <QList>
#include <QPair>
#include <QString>

namespace Test {

/** An item's state line taken apart, so that a test can say what one attribute should be and keep all others. */
class StateFields
{
public:
    StateFields() = default;
    explicit StateFields(const QString& line)
    {
        // A blank inside quotes belongs to its value; a quote behind a backslash does not end it.
        QStringList words{QString()};
        bool quoted = false;
        for (int i = 0; i < line.size(); ++i) {
            const QChar character = line.at(i);
            if (character == QLatin1Char(' ') && !quoted) {
                words.append(QString());
                continue;
            }
            words.last() += character;
            if (quoted && character == QLatin1Char('\\') && i + 1 < line.size()) {
                words.last() += line.at(++i);
            } else if (character == QLatin1Char('"')) {
                quoted = !quoted;
            }
        }
        kind = words.takeFirst();
        for (const QString& word : qAsConst(words)) {
            const int equals = word.indexOf(QLatin1Char('='));
            fields.append({word.left(equals), word.mid(equals + 1)});
        }
    }

    const QString& Kind() const { return kind; }
    void SetKind(const QString& word) { kind = word; }

    QStringList Names() const
    {
        QStringList names;
        for (const Field& field : fields) {
            names.append(field.first);
        }
        return names;
    }

    /** What stands behind the name, as it is written; null for a name that the line lacks. */
    QString Text(const QString& name) const
    {
        for (const Field& field : fields) {
            if (field.first == name) {
                return field.second;
            }
        }
        return {};
    }
    double Number(const QString& name) const { return Text(name).toDouble(); }
    int Integer(const QString& name) const { return Text(name).toInt(); }

    /** Writes a value as items write it. A name that the line lacks is ignored: the comparison will tell. */
    template <class Value>
    void Set(const char* name, const Value& value)
    {
        const QString written = TStateText(QString()).Add(name, value).Line();
        SetText(QLatin1String(name), written.mid(written.indexOf(QLatin1Char('=')) + 1));
    }

    void SetText(const QString& name, const QString& text)
    {
        for (Field& field : fields) {
            if (field.first == name) {
                field.second = text;
            }
        }
    }

    QString Line() const
    {
        QString line = kind;
        for (const Field& field : fields) {
            line += QLatin1Char(' ') + field.first + QLatin1Char('=') + field.second;
        }
        return line;
    }

    /** The names whose values differ between two lines of the same kind; "kind" when the lines cannot be compared. */
    QStringList Differences(const StateFields& other) const
    {
        if (kind != other.kind || Names() != other.Names()) {
            return {QStringLiteral("kind")};
        }
        QStringList names;
        for (int i = 0; i < fields.size(); ++i) {
            if (fields[i].second != other.fields[i].second) {
                names.append(fields[i].first);
            }
        }
        return names;
    }

private:
    using Field = QPair<QString, QString>;
    QString kind;
    QList<Field> fields;
};

} // namespace Test
