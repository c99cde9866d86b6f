#include "workbench/window/Theme.h"

#include "properties/TPropertyWidget.h"
#include "properties/TTreeWidget.h"

#include <QApplication>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>

#include <algorithm>

namespace {

/** Makes rows high enough for a number box. */
class TRoomyRows : public QProxyStyle
{
public:
    TRoomyRows() : QProxyStyle(QStringLiteral("fusion")) {}

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override
    {
        constexpr int lowestRow = 25;
        QSize wanted = QProxyStyle::sizeFromContents(type, option, size, widget);
        if (type == CT_ItemViewItem) {
            wanted.setHeight(std::max(wanted.height(), lowestRow));
            wanted.rwidth() += 8;
        }
        return wanted;
    }
};

} // namespace

void Theme::Apply()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));

    const QColor window(0xe9, 0xec, 0xf0);
    const QColor text(0x1e, 0x24, 0x2b);
    const QColor faint(0x8b, 0x93, 0x9d);
    const QColor accent(0x2f, 0x74, 0xc0);

    QPalette palette(window);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf5, 0xf7, 0xf9));
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Active, role, text);
        palette.setColor(QPalette::Inactive, role, text);
        palette.setColor(QPalette::Disabled, role, faint);
    }
    QApplication::setPalette(palette);

    if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
        QFont font = QApplication::font(); // No desktop environment has set one.
        font.setPointSizeF(9.5);
        QApplication::setFont(font);
    }
}

void Theme::MakeRoomy(TPropertyWidget& panel)
{
    auto style = std::make_unique<TRoomyRows>();
    style->setParent(&panel);
    panel.Tree()->setStyle(style.release());
}
