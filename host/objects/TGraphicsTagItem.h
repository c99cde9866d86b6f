#pragma once

#include <graphics/TGraphicsTextItem.h>

/**
 * A text of a schematic page that shows a value of the project: its name says which one. Without a value it shows the
 * name in braces, so that it can be seen and picked.
 */
class TGraphicsTagItem : public TGraphicsTextItem
{
public:
    explicit TGraphicsTagItem(QGraphicsItem* parent = nullptr);

    int type() const override { return ItemType::Tag; }
    QString KindName() const override { return QStringLiteral("tag"); }

    /** The setters store; with @p refresh they bring the text that is shown, and its drawing, up to date as well. */
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
