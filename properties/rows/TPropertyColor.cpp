#include "properties/rows/TPropertyColor.h"

#include "properties/rows/Swatch.h"

#include <QComboBox>

namespace {

const QStringList& Palette()
{
    static const QStringList names{"#FF5511", "#FF8800", "#FFBB00", "#FFFF00", "#BBFF00", "#77FF00",
                                   "#00FF00", "#00FF99", "#00FFFF", "#00BBFF", "#0066FF", "#0000FF",
                                   "#5500FF", "#7700FF", "#9900FF", "#FF0088", "#FF0000", "#DDDDDD",
                                   "#AAAAAA", "#888888", "#666666", "#444444"};
    return names;
}

} // namespace

TPropertyColor::TPropertyColor(const QString& label, const QColor& current) : TPropertyChoice(label)
{
    ReportRowChanges();
    Append(tr("Default"), QVariant());
    QStringList names = Palette();
    // Intended: the palette is in upper case and the name of a colour in lower case, so that a current colour that
    // equals a palette entry is listed twice.
    if (current.isValid() && !names.contains(current.name())) {
        names.append(current.name());
    }
    constexpr int lastPixelOfSwatch = Swatch::side - 2;
    for (const QString& name : qAsConst(names)) {
        Append(name, QVariant(), Swatch::Icon(QColor(name), lastPixelOfSwatch));
    }
    Box()->setIconSize(QSize(Swatch::side, Swatch::side));
    Box()->setCurrentIndex(
        current.isValid() ? Box()->findText(current.name(), Qt::MatchExactly | Qt::MatchCaseSensitive) : 0);
}

void TPropertyColor::slotRowChanged(int row)
{
    ReportItem(row, [this, row] { emit sigColorChanged(row > 0 ? QColor(Box()->itemText(row)) : QColor()); });
}
