#pragma once

#include "properties/rows/TAbstractProperty.h"

class TDoubleSpinBox;

/**
 * A row that edits a width and a height side by side, usually in millimetres.
 *
 * While the height box is disabled the height follows the width: the same, or twice that in the doubled mode.
 */
class PROPERTIES_EXPORT TPropertySize : public TAbstractProperty
{
    Q_OBJECT

public:
    TPropertySize(const QString& label, double min, double max, double step, int decimals);

    /** A no-op without the editor. */
    void SetSuffix(const QString& suffix);
    /** Sets whether a height that follows the width is twice the width, and applies that at once if there is an editor.
     */
    void SetDoubleHeight(bool on);

    // Null once the editor is gone.
    TDoubleSpinBox* width;
    TDoubleSpinBox* height;

Q_SIGNALS:
    void sigWidthChanged(double width);
    void sigHeightChanged(double height);

private Q_SLOTS:
    void slotWidthChanged(double newWidth);

private:
    bool doubleHeight = false;
};
