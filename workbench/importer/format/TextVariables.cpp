#include "workbench/importer/format/TextVariables.h"

#include "workbench/importer/format/ElementValues.h"
#include "workbench/importer/format/TSexpression.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

TextVariables::TValues TextVariables::OfTitleBlock(const TSexpression& titleBlock)
{
    TValues values;
    for (const TSexpression field : titleBlock) {
        const QString name = QString::fromLatin1(field.Name().data(), static_cast<int>(field.Name().size()));
        if (name == QLatin1String("comment")) {
            values.insert(QStringLiteral("COMMENT%1").arg(field.Value(0).Text()), field.Value(1).Text());
        } else if (name == QLatin1String("date")) {
            values.insert(QStringLiteral("ISSUE_DATE"), field.Value(0).Text());
        } else if (name == QLatin1String("rev")) {
            values.insert(QStringLiteral("REVISION"), field.Value(0).Text());
        } else if (!name.isEmpty()) {
            values.insert(name.toUpper(), field.Value(0).Text());
        }
    }
    return values;
}

TextVariables::TValues TextVariables::OfProject(const QByteArray& json)
{
    TValues values;
    const QJsonObject variables =
        QJsonDocument::fromJson(json).object().value(QLatin1String("text_variables")).toObject();
    for (auto variable = variables.begin(); variable != variables.end(); ++variable) {
        values.insert(variable.key(), variable.value().toString());
    }
    return values;
}

TextVariables::TValues TextVariables::OfFootprint(const TSexpression& footprint)
{
    TValues values;
    const QString name = footprint.Value(0).Text();
    values.insert(QStringLiteral("FOOTPRINT_NAME"), name.section(QLatin1Char(':'), -1));
    values.insert(QStringLiteral("FOOTPRINT_LIBRARY"), name.section(QLatin1Char(':'), 0, -2));
    for (const TSexpression field : footprint) {
        if (field.Name() == "property" || (field.Name() == "fp_text" && !field.Value(0).IsWord("user"))) {
            const QString key = field.Value(0).Text();
            const QString value = ElementValues::UserName(field.Value(1));
            values.insert(key, value);
            const QString upper = key.toUpper();
            if (upper == QLatin1String("REFERENCE") || upper == QLatin1String("VALUE")) {
                values.insert(upper, value);
            }
        }
    }
    if (footprint.Name() == "module") {
        values.insert(QStringLiteral("%R"), values.value(QStringLiteral("REFERENCE")));
        values.insert(QStringLiteral("%V"), values.value(QStringLiteral("VALUE")));
    }
    return values;
}

QString TextVariables::Resolved(const QString& text, const TValues& values)
{
    static const QRegularExpression variable(QStringLiteral(R"re(\$\{([^{}]*)\}|(%[RV]))re"));
    QString resolved;
    int behind = 0;
    for (auto found = variable.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const auto value = values.constFind(match.captured(1) + match.captured(2));
        resolved += text.midRef(behind, match.capturedStart() - behind);
        resolved += value == values.constEnd() ? match.captured(0) : *value;
        behind = match.capturedEnd();
    }
    return resolved + text.midRef(behind);
}
