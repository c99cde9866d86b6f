#include "properties/rows/TLineEdit.h"

#include "properties/rows/EditorBox.h"
#include "properties/rows/TWidgetHold.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QSignalBlocker>

#include <utility>

namespace {

/** Setting a style sheet is expensive, even if it does not change. */
void SetStyleSheetOnce(QWidget* widget, const QString& sheet)
{
    if (widget->styleSheet() != sheet) {
        widget->setStyleSheet(sheet);
    }
}

} // namespace

TLineEdit::TLineEdit(const QString& text, bool markWhenEmpty, QWidget* parent)
    : QWidget(parent),
      label(new QLabel),
      edit(new QLineEdit),
      check(new QCheckBox(tr("Show"))),
      markEmpty(markWhenEmpty)
{
    label->setFrameShape(QFrame::StyledPanel);
    label->setFrameShadow(QFrame::Plain);
    label->setTextFormat(Qt::PlainText);
    EditorBox::LayOut(this, {{label, 1}, {edit, 1}, {check, 0}});
    edit->hide();
    check->hide();
    connect(edit, SIGNAL(editingFinished()), this, SLOT(slotEndEdit()));
    setText(text);
}

void TLineEdit::setText(const QString& text)
{
    label->setText(text);
    if (markEmpty && text.isEmpty()) {
        SetStyleSheetOnce(label, QStringLiteral("background-color: #FF7F7F"));
    } else {
        SetStyleSheetOnce(label, check->styleSheet());
    }
    if (textIsSet) {
        textIsSet();
    }
}

QString TLineEdit::Text() const
{
    return label->text();
}

void TLineEdit::SetBackgroundColor(const QColor& color)
{
    SetStyleSheetOnce(label, QStringLiteral("background-color: ") + color.name());
}

void TLineEdit::Close(int reports, bool takesText)
{
    // Hiding the editor moves the focus: handlers of that in the application may do anything, and the edit can finish
    // again. It is reported to receivers once the toolkit has moved the focus.
    const TWidgetHold hold(this);
    const QPointer<TLineEdit> self(this);
    closing = true;
    label->show();
    edit->hide();
    if (!self) {
        return;
    }
    closing = false;
    const QString text = edit->text();
    if (takesText) {
        setText(text);
    }
    for (reports += std::exchange(ends, 0); reports > 0 && self; --reports) {
        emit textChanged(text);
    }
}

void TLineEdit::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (!editable) {
        QWidget::mouseDoubleClickEvent(event);
        return;
    }
    const TWidgetHold hold(this); // A focus handler of the application may do anything.
    label->hide();
    edit->show();
    edit->setText(label->text());
    edit->setFocus(Qt::OtherFocusReason);
    edit->selectAll();
}

void TLineEdit::keyPressEvent(QKeyEvent* event)
{
    if (edit->isHidden()) {
        QWidget::keyPressEvent(event);
        return;
    }
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: slotEndEdit(); break;
    case Qt::Key_Escape: {
        const TWidgetHold hold(this);
        label->show();
        const QSignalBlocker blocker(edit); // Hiding takes the focus away, which would commit the text.
        edit->hide();
        break;
    }
    default: QWidget::keyPressEvent(event);
    }
}

void TLineEdit::slotEndEdit()
{
    setText(edit->text());
    if (closing) {
        ++ends;
    } else {
        Close(1);
    }
}

void TLineEdit::mousePressEvent(QMouseEvent* event)
{
    if (edit->isHidden()) {
        QWidget::mousePressEvent(event);
        return;
    }
    qDebug("mouse press");
    Close(0, true);
}

void TLineEdit::focusOutEvent(QFocusEvent*)
{
    qDebug("focus out");
    Close(0);
}
