#pragma once

#include <properties/Export.h>

#include <QWidget>

#include <functional>

class QCheckBox;
class QLabel;
class QLineEdit;

/**
 * Shows a text as a framed label that turns into a line editor on a double click.
 *
 * Return and leaving the editor commit the text, Escape discards it. A commit may be reported more than once: as
 * often as the toolkit reports the end of the edit.
 */
class PROPERTIES_EXPORT TLineEdit : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool readOnly READ IsReadOnly)

public:
    /** With @p markWhenEmpty an empty text is shown on a red background. */
    TLineEdit(const QString& text, bool markWhenEmpty, QWidget* parent);

    /** Shows a text; emits nothing. */
    void setText(const QString& text);
    /** The committed text, as the label shows it. */
    QString Text() const;

    /** Makes every `setText` call @p handler; one handler at most. */
    void WhenTextIsSet(std::function<void()> handler) { textIsSet = std::move(handler); }

    void SetBackgroundColor(const QColor& color);

    /** Whether a double click starts editing; true from construction. */
    bool IsEditable() const { return editable; }
    void SetEditable(bool on) { editable = on; }
    bool IsReadOnly() const { return !editable; }

    QLabel* const label;
    QLineEdit* const edit; ///< Hidden except while editing.

Q_SIGNALS:
    void textChanged(const QString& text);

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private Q_SLOTS:
    void slotEndEdit();

private:
    /** Hides the editor and then reports its text the given number of times. */
    void Close(int reports, bool takesText = false);

    QCheckBox* const check; ///< Never shown: it provides the label's style when nothing is marked.
    bool markEmpty;
    bool editable = true;
    bool closing = false;
    int ends = 0; ///< How often hiding the editor has finished the edit again.
    std::function<void()> textIsSet;
};
