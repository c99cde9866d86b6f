#pragma once

#include "properties/TPropertySet.h"

class TBoard;
class TGraphicsPackageItem;
class TPropertyCheck2;
class TPropertyLayer;
class TPropertyText;

/** Shows packages, and edits their side and which of their texts are locked in place. */
class PROPERTIES_EXPORT TPropertySetForPackage : public TPropertySet
{
    Q_OBJECT

public:
    /** Keeps the packages of @p selection; @p layers are those that the "Side:" row offers. */
    TPropertySetForPackage(QList<TGraphicsItem*> selection, QList<Osmirel::Layer> layers, TBoard* board);

    /** "O" moves the packages to the other side. */
    void KeyPressEvent(QKeyEvent* event) override;

Q_SIGNALS:
    /** A value or a package name was changed directly. */
    void sigAttr();

public Q_SLOTS:
    /** Intended: a no-op, since only a command of the application renames designators. */
    void SetRefDes(QString refDes);
    /** @{ Written at once, without a command; emits `sigAttr`. */
    void SetValue(QString newValue);
    void SetPackage(QString newPackage);
    /** @} */
    /** @{ Written at once, without a command. */
    void SetLockRefDes(bool on);
    void SetLockValue(bool on);
    /** @} */
    void SetSide(Osmirel::Layer layer);

private:
    struct Values;
    void MakeRows(const Values& values, const QList<Osmirel::Layer>& layers, TWorkspace* workspace);

    QList<TGraphicsPackageItem*> packages;
    TBoard* board;
    QPointer<TPropertyText> refDes;
    QPointer<TPropertyText> value;
    QPointer<TPropertyCheck2> lock;
    QPointer<TPropertyText> package;
    QPointer<TPropertyText> id;
    QPointer<TPropertyLayer> side;
};
