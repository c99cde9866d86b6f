#include <contract/Store.h>
#include <graphics/TGraphicsLineItem.h>
#include <graphics/TGraphicsPolygonItem.h>
#include <graphics/TGraphicsRectItem.h>
#include <graphics/TGraphicsTextItem.h>

using ContractHost::CallOut;
using ContractHost::Store;

float TGraphicsPenItem::PenWidth() const { return penWidth; }
void TGraphicsPenItem::SetPenWidth(float width) { Store(penWidth, width); }
QPen& TGraphicsPenItem::Pen() { return pen; }
const QPen& TGraphicsPenItem::Pen() const { return pen; }

int TGraphicsLineItem::type() const { return ItemType::Line; }
QLineF TGraphicsLineItem::Line() const { return line; }

int TGraphicsRectItem::type() const { return ItemType::Rectangle; }
QSizeF TGraphicsRectItem::Size() const { return size; }
void TGraphicsRectItem::SetSize(float width, float height) { Store(size, QSizeF(qreal(width), qreal(height))); }
QBrush& TGraphicsRectItem::Brush() { return brush; }
const QBrush& TGraphicsRectItem::Brush() const { return brush; }

int TGraphicsPolygonItem::type() const { return ItemType::Polygon; }
QBrush& TGraphicsPolygonItem::Brush() { return brush; }
const QBrush& TGraphicsPolygonItem::Brush() const { return brush; }

int TGraphicsTextItem::type() const { return ItemType::Text; }
void TGraphicsTextItem::SetText(const QString& newText) { Store(text, newText); }
QFont& TGraphicsTextItem::Font() { return font; }
const QFont& TGraphicsTextItem::Font() const { return font; }
bool TGraphicsTextItem::IsVector() const { return vector; }
void TGraphicsTextItem::SetVector(bool on) { Store(vector, on); }
int TGraphicsTextItem::Alignment() const { return alignment; }
void TGraphicsTextItem::SetAlignment(int alignmentFlags) { Store(alignment, alignmentFlags); }
float TGraphicsTextItem::LineWidth() const { return lineWidth; }
void TGraphicsTextItem::SetLineWidth(float width) { Store(lineWidth, width); }
void TGraphicsTextItem::SetMirrorH(bool on) { SetTFlag(MirrorHorizontal, on); }
void TGraphicsTextItem::SetMirrorV(bool on) { SetTFlag(MirrorVertical, on); }
void TGraphicsTextItem::UpdatePath(bool) { CallOut(); }
