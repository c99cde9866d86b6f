#pragma once

#include <QObject>
#include <QStringList>
#include <QTranslator>

/** The languages of the panel: English, and those whose translations are compiled in. */
class TLanguages : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /** Codes such as "en" and "de", English first. */
    static QStringList Available();
    /** The native name of a language. */
    static QString NameOf(const QString& code);

    const QString& Current() const { return current; }
    /** Translates all texts that are created from now on; an unknown code means English. */
    void Switch(const QString& code);

signals:
    void sigSwitched();

private:
    QTranslator translator;
    QString current = QStringLiteral("en");
};
