#include "workbench/session/TSession.h"

#include "properties/rows/TAbstractProperty.h"
#include "properties/TPropertySet.h"
#include "properties/TPropertyWidget.h"
#include "workbench/design/TDesign.h"
#include "workbench/editing/DesignActions.h"
#include "workbench/editing/Kinds.h"
#include "workbench/editing/TSelection.h"
#include "workbench/session/TAssignment.h"
#include "workbench/session/TItemQuery.h"
#include "workbench/session/TRowEditor.h"
#include "workbench/session/TSessionError.h"
#include "workbench/window/TCanvas.h"
#include "workbench/window/TDocumentTabs.h"
#include "workbench/window/TLayerList.h"
#include "workbench/window/TMainWindow.h"

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QKeySequence>
#include <QPixmap>
#include <QPointer>
#include <QUndoStack>

namespace {

QString Counted(const QList<TGraphicsItem*>& items)
{
    return Kinds::Summary(items);
}

} // namespace

TPropertySet& TSession::ShownSet() const
{
    if (window.Selection().Items().isEmpty()) {
        throw TSessionError(QStringLiteral("nothing is selected"));
    }
    TPropertySet* set = window.Panel().PropertySet();
    if (!set) {
        throw TSessionError(QStringLiteral("the panel is empty: the selected items have no properties"));
    }
    return *set;
}

QString TSession::Select(const TItemQuery& query)
{
    window.Selection().Select(query.Find(window.Design()->ItemsOf(window.Tabs().Document()), Place()));
    return QStringLiteral("selected: %1").arg(Counted(window.Selection().Items()));
}

QString TSession::Panel() const
{
    QStringList lines{window.Panel().parentWidget()->windowTitle()};
    if (const TPropertySet* set = window.Panel().PropertySet()) {
        for (TAbstractProperty* row : set->Properties()) {
            if (!row->isHidden()) {
                lines.append(TRowEditor(*row).Line());
            }
        }
    }
    return lines.join(QLatin1Char('\n'));
}

QString TSession::Set(const QString& assignment)
{
    const QList<TAbstractProperty*> rows = ShownSet().Properties();
    const TAssignment edit = TAssignment::Resolve(assignment, rows);
    const QPointer<TAbstractProperty> row(edit.row);
    const QString before = TRowEditor(*row).ShownValue();
    const int index = window.UndoStack().index();

    TRowEditor(*row).Set(edit.part, edit.value);

    const QStringList pushed = PushedSince(index);
    if (!row) {
        return pushed.join(QLatin1Char('\n'));
    }
    const TRowEditor editor(*row);
    QString outcome = QStringLiteral("written, no undo step");
    if (!pushed.isEmpty()) {
        outcome = pushed.join(QStringLiteral("; "));
    } else if (editor.ShownValue() == before) {
        outcome = QStringLiteral("unchanged");
    }
    return QStringLiteral("%1 %2 (%3)").arg(editor.Label(), editor.ShownValue(), outcome);
}

QStringList TSession::PushedSince(int index) const
{
    QStringList texts;
    for (int i = index; i < window.UndoStack().index(); ++i) {
        texts.append(window.UndoStack().text(i));
    }
    return texts;
}

QString TSession::Press(const QKeySequence& key)
{
    ShownSet();
    const int index = window.UndoStack().index();
    const int code = key[0] & ~static_cast<int>(Qt::KeyboardModifierMask);
    const auto modifiers = static_cast<Qt::KeyboardModifiers>(key[0] & static_cast<int>(Qt::KeyboardModifierMask));
    const bool isCharacter = code >= Qt::Key_Space && code <= Qt::Key_AsciiTilde
                             && !(modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    const QString text = isCharacter ? QString(QChar(code)).toLower() : QString();
    window.Canvas().setFocus();
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, code, modifiers, text);
        QApplication::sendEvent(&window.Canvas(), &event);
    }
    const QStringList pushed = PushedSince(index);
    return QStringLiteral("pressed: %1 (%2)")
        .arg(key.toString(), pushed.isEmpty() ? QStringLiteral("no edit") : pushed.join(QStringLiteral("; ")));
}

QString TSession::Bypass(bool on)
{
    const QList<TGraphicsItem*>& items = window.Selection().Items();
    if (items.isEmpty()) {
        throw TSessionError(QStringLiteral("nothing is selected"));
    }
    for (TGraphicsItem* item : items) {
        item->SetTFlag(TGraphicsItem::UndoBypass, on);
    }
    return QStringLiteral("bypass %1: %2").arg(on ? QStringLiteral("on") : QStringLiteral("off"), Counted(items));
}

QString TSession::Do(const TDesignAction& action, const QString& text, const QPointF& point)
{
    const int index = window.UndoStack().index();
    if (!window.Do(action, text, point)) {
        throw TSessionError(QStringLiteral("select %1 first").arg(action.Needs()));
    }
    return PushedSince(index).join(QStringLiteral("; "));
}

QString TSession::ShowDesignators(bool on)
{
    window.ShowDesignators(on);
    return QStringLiteral("designators: %1").arg(on ? QStringLiteral("shown") : QStringLiteral("hidden"));
}

QString TSession::ShowValues(bool on)
{
    window.ShowValues(on);
    return QStringLiteral("values: %1").arg(on ? QStringLiteral("shown") : QStringLiteral("hidden"));
}

QString TSession::ShowLayers(const QString& names)
{
    return SetLayers(names, true);
}

QString TSession::HideLayers(const QString& names)
{
    return SetLayers(names, false);
}

QString TSession::SetLayers(const QString& names, bool on)
{
    TLayerList& layers = window.Layers();
    const QStringList known = layers.Names();
    const QStringList wanted = names == QLatin1String("all") ? known : names.split(QLatin1Char(','));
    for (const QString& name : wanted) {
        if (!known.contains(name)) {
            throw TSessionError(QStringLiteral("there is no layer \"%1\"; %2 has %3")
                                    .arg(name, Place(), known.join(QStringLiteral(", "))));
        }
    }
    for (const QString& name : wanted) {
        layers.ShowLayer(name, on);
    }
    return QStringLiteral("layers %1: %2").arg(on ? QStringLiteral("shown") : QStringLiteral("hidden"), names);
}

QString TSession::ZoomToAll()
{
    window.Canvas().FitAll();
    return QStringLiteral("zoomed: all");
}

QString TSession::ZoomToSelection()
{
    if (window.Selection().Items().isEmpty()) {
        throw TSessionError(QStringLiteral("nothing is selected"));
    }
    window.Canvas().FitSelection();
    return QStringLiteral("zoomed: selection");
}

QString TSession::Undo(int times)
{
    return Move(times, true);
}

QString TSession::Redo(int times)
{
    return Move(times, false);
}

QString TSession::Move(int times, bool back)
{
    QUndoStack& stack = window.UndoStack();
    QStringList lines;
    for (int i = 0; i < times; ++i) {
        if (back ? !stack.canUndo() : !stack.canRedo()) {
            lines.append(back ? QStringLiteral("nothing to undo") : QStringLiteral("nothing to redo"));
            break;
        }
        lines.append(back ? QStringLiteral("undone: ") + stack.undoText()
                          : QStringLiteral("redone: ") + stack.redoText());
        back ? stack.undo() : stack.redo();
    }
    return lines.join(QLatin1Char('\n'));
}

QString TSession::History() const
{
    const QUndoStack& stack = window.UndoStack();
    QStringList lines{QStringLiteral("history: %1 of %2 done").arg(stack.index()).arg(stack.count())};
    for (int i = 0; i < stack.count(); ++i) {
        lines.append(QStringLiteral("%1 %2%3").arg(i + 1, 3).arg(
            stack.text(i), i < stack.index() ? QString() : QStringLiteral(" (undone)")));
    }
    return lines.join(QLatin1Char('\n'));
}

QString TSession::Dump(const QString& file) const
{
    const QString dump = window.Design()->Dump();
    if (file == QLatin1String("-")) {
        return dump.chopped(dump.isEmpty() ? 0 : 1);
    }
    QFile target(file);
    if (!target.open(QIODevice::WriteOnly | QIODevice::Truncate) || target.write(dump.toUtf8()) < 0
        || !target.flush()) {
        throw TSessionError(QStringLiteral("%1 cannot be written: %2").arg(file, target.errorString()));
    }
    return QStringLiteral("dumped: %1 items to %2").arg(dump.count(QLatin1Char('\n'))).arg(file);
}

QString TSession::Screenshot(const QString& file) const
{
    QFile target(file);
    const QPixmap picture = window.grab();
    if (!target.open(QIODevice::WriteOnly | QIODevice::Truncate) || !picture.save(&target, "PNG") || !target.flush()) {
        throw TSessionError(QStringLiteral("%1 cannot be written: %2").arg(file, target.errorString()));
    }
    return QStringLiteral("screenshot: %1 x %2 pixels to %3").arg(picture.width()).arg(picture.height()).arg(file);
}
