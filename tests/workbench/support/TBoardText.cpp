#include "tests/workbench/support/TBoardText.h"

#include <QFile>
#include <QRegularExpression>

namespace {

QStringList Captured(const QString& pattern, const QString& text)
{
    return QRegularExpression(pattern).match(text).capturedTexts();
}

} // namespace

TBoardText::TBoardText(const QString& fileName)
{
    QFile file(fileName);
    text = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    // The list of nets has one to a line; a pad's net has something else before or behind it, or stands deeper.
    const QRegularExpression definition(R"re(\n(?:  |\t)\(net (\d+) (?:"((?:[^"\\]|\\.)*)"|([^\s()]+))\)(?=\n))re");
    for (auto found = definition.globalMatch(text); found.hasNext();) {
        const auto net = found.next();
        QString name = net.captured(2) + net.captured(3);
        nets.insert(net.captured(1).toInt(), name.replace("\\\"", "\"").replace("{slash}", "/"));
    }
}

int TBoardText::CountMatches(const QString& pattern) const
{
    int count = 0;
    for (auto found = QRegularExpression(pattern).globalMatch(text); found.hasNext(); found.next()) {
        ++count;
    }
    return count;
}

int TBoardText::CountNettedPads() const
{
    const auto isNamed = [](const QString& name) { return !name.isEmpty(); };
    const auto named = std::count_if(nets.begin(), nets.end(), isNamed);
    return CountMatches(R"re(\(net [1-9]\d* (?!""\))\S)re") - static_cast<int>(named);
}

QStringList TBoardText::Elements(const QString& token) const
{
    QStringList elements;
    const QRegularExpression element("\\(" + token + R"re(\s(?:[^()]|\([^()]*\))*\))re");
    for (auto found = element.globalMatch(text); found.hasNext();) {
        elements.append(found.next().captured(0));
    }
    return elements;
}

QString TBoardText::Net(const QString& element) const
{
    return nets.value(static_cast<int>(Number(element, QStringLiteral("net"))));
}

double TBoardText::Number(const QString& element, const QString& list)
{
    return Captured("\\(" + list + " ([^\\s)]+)", element).value(1).toDouble();
}

QPointF TBoardText::Point(const QString& element, const QString& list)
{
    const QStringList numbers = Captured("\\(" + list + " (\\S+) ([^\\s)]+)", element);
    return {numbers.value(1).toDouble(), numbers.value(2).toDouble()};
}
