#pragma once

#include <graphics/TGraphicsTextItem.h>

/**
 * A text of a schematic page that shows the value of the project of that name. Without a value it shows the name in
 * braces, so that it is visible and can be selected.
 */
class TGraphicsTagItem : public TGraphicsTextItem
{
public:
    explicit TGraphicsTagItem(QGraphicsItem* parent = nullptr);

    int type() const override { return ItemType::Tag; }
    QString KindName() const override { return QStringLiteral("tag"); }

    /** The setters store; with @p refresh they also update the displayed text and its drawing. */
    const QString& Name() const { return name; }
    void SetName(const QString& newName, bool refresh);
    const QString& Value() const { return value; }
    void SetValue(const QString& newValue, bool refresh);

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void CopyFrom(const TGraphicsItem& source) override;
    void Describe(TStateText& state) const override;

private:
    void ShowValue();

    QString name;
    QString value;
};
