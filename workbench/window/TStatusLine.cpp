#include "workbench/window/TStatusLine.h"

#include <workspace/TWorkspace.h>

#include <QLabel>
#include <QStatusBar>

namespace {

QLabel* MakeLabel(QStatusBar& bar)
{
    auto* label = new QLabel(&bar);
    label->setContentsMargins(6, 0, 6, 0);
    return label;
}

/** Elides a text to the width of the status bar, with the full text as tool tip. */
void ShowShortened(QLabel& label, const QString& text)
{
    constexpr int widest = 460;
    label.setText(label.fontMetrics().elidedText(text, Qt::ElideRight, widest));
    label.setToolTip(text);
}

} // namespace

TStatusLine::TStatusLine(QStatusBar& bar)
    : QObject(&bar), content(MakeLabel(bar)), notice(MakeLabel(bar)), selected(MakeLabel(bar)), position(MakeLabel(bar))
{
    bar.addWidget(content);
    bar.addWidget(notice);
    bar.addPermanentWidget(selected);
    bar.addPermanentWidget(position);
    position->setMinimumWidth(position->fontMetrics().horizontalAdvance(QStringLiteral("-0000.000, -0000.000 mm"))
                              + 12);
    position->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void TStatusLine::ShowContent(const QString& summary)
{
    ShowShortened(*content, summary);
}

void TStatusLine::ShowNotices(const QStringList& notices)
{
    ShowShortened(*notice, notices.join(QStringLiteral("; ")));
}

void TStatusLine::ShowSelected(const QString& summary)
{
    selected->setText(summary.isEmpty() ? tr("Nothing selected") : tr("Selected: %1").arg(summary));
}

void TStatusLine::ShowPosition(const QPointF& scenePoint, const TWorkspace& workspace)
{
    position->setText(QStringLiteral("%1, %2 %3")
                          .arg(workspace.ValueFromScene(scenePoint.x()), 0, 'f', 3)
                          .arg(workspace.ValueFromScene(scenePoint.y()), 0, 'f', 3)
                          .arg(workspace.CurrentUnitStr()));
}
