#include "workbench/window/TLanguages.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

namespace {

const QString english = QStringLiteral("en");
const QString folder = QStringLiteral(":/properties/translations");
const QString prefix = QStringLiteral("properties_");

} // namespace

QStringList TLanguages::Available()
{
    QStringList codes{english};
    for (const QString& file : QDir(folder).entryList({prefix + QStringLiteral("*.qm")}, QDir::Files, QDir::Name)) {
        const QString code = QString(file).remove(prefix).remove(QStringLiteral(".qm"));
        if (code != english) {
            codes.append(code);
        }
    }
    return codes;
}

QString TLanguages::NameOf(const QString& code)
{
    return code == english ? QStringLiteral("English") : QLocale(code).nativeLanguageName();
}

void TLanguages::Switch(const QString& code)
{
    QCoreApplication::removeTranslator(&translator);
    current = english;
    if (code != english && translator.load(prefix + code, folder)) {
        QCoreApplication::installTranslator(&translator);
        current = code;
    }
    emit sigSwitched();
}
