#include "properties/rows/TPropertyPenStyle.h"

#include <QComboBox>
#include <QPainter>
#include <QPixmap>

namespace {

constexpr QSize sampleSize(48, 12);

QIcon Sample(Qt::PenStyle style)
{
    QPixmap pixmap(sampleSize);
    pixmap.fill(Qt::color0);
    QPainter painter(&pixmap);
    painter.setPen(QPen(Qt::black, 2.0, style, Qt::FlatCap, Qt::BevelJoin));
    painter.drawLine(0, sampleSize.height() / 2, sampleSize.width(), sampleSize.height() / 2);
    return pixmap;
}

} // namespace

TPropertyPenStyle::TPropertyPenStyle(const QString& label) : TPropertyChoice(label)
{
    ReportRowChanges();
    Box()->setIconSize(sampleSize);
    Append(tr("Solid"), static_cast<int>(Qt::SolidLine), Sample(Qt::SolidLine));
    Append(tr("Dash"), static_cast<int>(Qt::DashLine), Sample(Qt::DashLine));
    Append(tr("Dot"), static_cast<int>(Qt::DotLine), Sample(Qt::DotLine));
    Append(tr("Dash dot"), static_cast<int>(Qt::DashDotLine), Sample(Qt::DashDotLine));
    Append(tr("Dash dot dot"), static_cast<int>(Qt::DashDotDotLine), Sample(Qt::DashDotDotLine));
    Append(tr("None"), static_cast<int>(Qt::NoPen), Sample(Qt::NoPen));
}

Qt::PenStyle TPropertyPenStyle::CurrentPenStyle() const
{
    return static_cast<Qt::PenStyle>(CurrentData().toInt());
}

void TPropertyPenStyle::SetCurrentPenStyle(Qt::PenStyle style)
{
    SetCurrentData(static_cast<int>(style));
}

void TPropertyPenStyle::slotRowChanged(int row)
{
    ReportItem(row, [this, row] { emit sigPenStyleChanged(static_cast<Qt::PenStyle>(DataAt(row).toInt())); });
}
