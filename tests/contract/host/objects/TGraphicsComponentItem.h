#pragma once

#include <graphics/TGraphicsItem.h>

/** What packages and parts have in common. */
class TGraphicsComponentItem : public TGraphicsItem
{
public:
    QString RefDes() const;
    void SetRefDes(const QString& text);
    QString Value() const;
    void SetValue(const QString& text);
    QString PackageName() const;
    void SetPackageName(const QString& text);
    quint16 ComponentNumber() const;
    TGraphicsItem* RefDesText() const;
    TGraphicsItem* ValueText() const;
    bool LockRefDes() const;
    void SetLockRefDes(bool on);
    bool LockValue() const;
    void SetLockValue(bool on);

protected:
    QString refDes;
    QString value;
    QString packageName;
    quint16 componentNumber = 0;
    TGraphicsItem* refDesText = nullptr;
    TGraphicsItem* valueText = nullptr;
    bool lockRefDes = false;
    bool lockValue = false;
};
