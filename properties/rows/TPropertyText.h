#pragma once

#include "properties/rows/TAbstractProperty.h"

class QCheckBox;
class TLineEdit;

/**
 * A row that edits a text, optionally with a "Show" box for the text's visibility on the design.
 *
 * Return may report the same committed text more than once.
 */
class PROPERTIES_EXPORT TPropertyText : public TAbstractProperty
{
    Q_OBJECT

public:
    /** With @p markEmpty an empty text is shown on a red background. */
    TPropertyText(const QString& label, const QString& text, bool markEmpty);

    // Null once the editor is gone.
    TLineEdit* line;
    QCheckBox* visible; ///< Checked, and hidden until the set shows it; reports clicks only.

Q_SIGNALS:
    void sigTextChanged(const QString& text);
    void sigVisibleChanged(bool on);
};
