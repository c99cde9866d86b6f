#include "properties/rows/TLineEdit.h"

#include "properties/rows/EditorBox.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QSignalBlocker>

namespace {

/** A style sheet is costly to set, even the one that is there already. */
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
}

QString TLineEdit::Text() const
{
    return label->text();
}

void TLineEdit::SetBackgroundColor(const QColor& color)
{
    SetStyleSheetOnce(label, QStringLiteral("background-color: ") + color.name());
}

void TLineEdit::ShowLabel()
{
    label->show();
    edit->hide();
}

void TLineEdit::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (!editable) {
        QWidget::mouseDoubleClickEvent(event);
        return;
    }
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
    const QString text = edit->text();
    const QPointer<TLineEdit> self(this); // Hiding the editor can commit once more, and a receiver delete this widget.
    setText(text);
    ShowLabel();
    if (self) {
        emit textChanged(text);
    }
}

void TLineEdit::mousePressEvent(QMouseEvent* event)
{
    if (edit->isHidden()) {
        QWidget::mousePressEvent(event);
        return;
    }
    qDebug("mouse press");
    const QPointer<TLineEdit> self(this);
    ShowLabel();
    if (self) {
        setText(edit->text());
    }
}

void TLineEdit::focusOutEvent(QFocusEvent*)
{
    qDebug("focus out");
    ShowLabel();
}
