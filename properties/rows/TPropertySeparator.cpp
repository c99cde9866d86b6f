#include "properties/rows/TPropertySeparator.h"

TPropertySeparator::TPropertySeparator(const QString& label) : TAbstractProperty(label, nullptr)
{
    if (treeWidget()) {
        setFirstColumnSpanned(true);
    }
    if (label.isEmpty()) {
        return;
    }
    setText(labelColumn, label);
    QFont bold = font(labelColumn);
    bold.setWeight(QFont::Bold);
    setFont(labelColumn, bold);
}
