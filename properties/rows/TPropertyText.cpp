#include "properties/rows/TPropertyText.h"

#include "properties/rows/EditorBox.h"
#include "properties/rows/TLineEdit.h"

#include <QCheckBox>

TPropertyText::TPropertyText(const QString& label, const QString& text, bool markEmpty)
    : TAbstractProperty(label, nullptr),
      line(new TLineEdit(text, markEmpty, nullptr)),
      visible(new QCheckBox(tr("Show")))
{
    auto* box = new QWidget;
    SetEditor(box);
    EditorBox::LayOut(box, {{line, 1}, {visible, 0}});
    visible->hide();
    visible->setChecked(true);
    AddOwnPart(QString(), line);
    AddOwnPart(QStringLiteral("show"), visible);
    line->WhenTextIsSet([this] { SetMixed(false); });
    connect(line, &TLineEdit::textChanged, this, [this](const QString& committed) {
        Report(FirstValue, [this, committed] { emit sigTextChanged(committed); });
    });
    connect(visible, &QCheckBox::clicked, this,
            [this](bool on) { Report(SecondValue, [this, on] { emit sigVisibleChanged(on); }); });
}
