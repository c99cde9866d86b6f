#include "tests/workbench/support/SheetTexts.h"

#include "workbench/importer/format/TImportError.h"

#include <QStringList>

namespace {

QByteArray Pin(const QByteArray& number, const QByteArray& at, const QByteArray& name = "~",
               const QByteArray& kind = "passive line")
{
    return "(pin " + kind + " (at " + at + ") (length 2) (name \"" + name
           + "\" (effects (font (size 1.27 1.27)))) (number \"" + number + "\" (effects (font (size 1.27 1.27)))))";
}

QByteArray LibrarySymbol(const QByteArray& name, const QByteArray& bodies, const QByteArray& flags = {})
{
    return "(symbol \"" + name + "\" " + flags + " (in_bom yes) (on_board yes) " + bodies + ")\n";
}

QByteArray Body(const QByteArray& name, const QByteArray& content)
{
    return "(symbol \"" + name + "\" " + content + ")";
}

QByteArray Library(int version)
{
    // The newest format writes flags as lists.
    const QByteArray supply =
        version < 9 ? Pin("9", "0 5 270", "VCC", "power_in line").replace("(length 2)", "(length 2) hide")
                    : Pin("9", "0 5 270", "VCC", "power_in line").replace("(length 2)", "(length 2) (hide yes)");
    const QByteArray rectangle =
        "(rectangle (start -2 3) (end 2 -3) (stroke (width 0.254) (type default)) (fill (type none)))";
    const auto power = [](const QByteArray& net) {
        return LibrarySymbol("P:" + net, Body(net + "_1_1", Pin("1", "0 0 90", net, "power_in line")), "(power)");
    };
    return "(lib_symbols\n"
           + LibrarySymbol("L:R", Body("R_0_1", rectangle) + Body("R_1_1", Pin("1", "0 5 270") + Pin("2", "0 -5 90")))
           + LibrarySymbol("L:Q",
                           Body("Q_1_1", Pin("A", "-5 0 0", "A") + Pin("B", "0 5 270", "B") + Pin("C", "5 0 180", "C")))
           + LibrarySymbol("L:U", Body("U_0_0", supply) + Body("U_1_1", Pin("1", "-5 0 0", "IN"))
                                      + Body("U_2_1", Pin("2", "-5 0 0", "IN")))
           + LibrarySymbol("L:N", Body("N_1_1", Pin("1", "-5 5 270", "NAME") + Pin("2", "0 5 270", "NAME")
                                                    + Pin("3", "5 5 270", "OTHER")))
           + power("GND") + power("3V3") + ")\n";
}

QByteArray Field(const QByteArray& key, const QByteArray& value)
{
    return "(property \"" + key + "\" \"" + value + "\" (at 0 0 0) (effects (font (size 1.27 1.27))))";
}

} // namespace

int SheetTexts::Format(int version)
{
    constexpr int formats[] = {20211123, 20230121, 20231120, 20250114};
    return formats[version - 6];
}

QByteArray SheetTexts::Sheet(const QByteArray& elements, int version, const QByteArray& uuid)
{
    return "(kicad_sch (version " + QByteArray::number(Format(version)) + ") (generator \"eeschema\")\n(uuid " + uuid
           + ")\n(paper \"A4\")\n" + Library(version) + elements + "\n)\n";
}

QByteArray SheetTexts::Symbol(const QByteArray& reference, const QByteArray& libraryName, const QByteArray& at,
                              const QByteArray& extra)
{
    const QByteArray value = libraryName.mid(2);
    return "(symbol (lib_id \"" + libraryName + "\") (at " + at + ") " + extra + " (uuid sym-" + reference + ") "
           + Field("Reference", reference) + Field("Value", value) + Field("Footprint", "Lib:" + value) + ")\n";
}

QByteArray SheetTexts::SharedSymbol(const QByteArray& libraryName, const QByteArray& at,
                                    const QList<QPair<QByteArray, QByteArray>>& references)
{
    QByteArray paths;
    for (const auto& [path, reference] : references) {
        paths += "(path \"" + path + "\" (reference \"" + reference + "\") (unit 1))";
    }
    return Symbol("X?", libraryName, at, "(instances (project \"root\" " + paths + "))");
}

QByteArray SheetTexts::Wire(const QByteArray& from, const QByteArray& to)
{
    return "(wire (pts (xy " + from + ") (xy " + to + ")) (stroke (width 0) (type default)))\n";
}

QByteArray SheetTexts::Bus(const QByteArray& from, const QByteArray& to)
{
    return "(bus (pts (xy " + from + ") (xy " + to + ")) (stroke (width 0) (type default)))\n";
}

QByteArray SheetTexts::Entry(const QByteArray& at, const QByteArray& size)
{
    return "(bus_entry (at " + at + ") (size " + size + ") (stroke (width 0) (type default)))\n";
}

QByteArray SheetTexts::Junction(const QByteArray& at)
{
    return "(junction (at " + at + ") (diameter 0) (color 0 0 0 0))\n";
}

QByteArray SheetTexts::Label(const QByteArray& kind, const QByteArray& text, const QByteArray& at)
{
    return "(" + kind + " \"" + text + "\" (at " + at + " 0) (effects (font (size 1.27 1.27)) (justify left)))\n";
}

QByteArray SheetTexts::Box(const QByteArray& name, const QByteArray& file, const QByteArray& uuid,
                           const QList<QPair<QByteArray, QByteArray>>& pins)
{
    QByteArray text =
        "(sheet (at 100 100) (size 20 20) (uuid " + uuid + ") " + Field("Sheetname", name) + Field("Sheetfile", file);
    for (const auto& [pin, at] : pins) {
        text += "(pin \"" + pin + "\" input (at " + at + " 180) (effects (font (size 1.27 1.27))))";
    }
    return text + ")\n";
}

TSheetHierarchy SheetTexts::Read(const QMap<QString, QByteArray>& sheets)
{
    TSheetHierarchy hierarchy = ReadHierarchy(QStringLiteral("root.kicad_sch"), [&sheets](const QString& fileName) {
        if (!sheets.contains(fileName)) {
            throw TImportError(0, QStringLiteral("no %1").arg(fileName));
        }
        return sheets.value(fileName);
    });
    TraceNets(hierarchy);
    return hierarchy;
}

TSheetHierarchy SheetTexts::Read(const QByteArray& root)
{
    return Read({{QStringLiteral("root.kicad_sch"), root}});
}

QString SheetTexts::PinNets(const TSheetHierarchy& hierarchy)
{
    QStringList pins;
    for (const TSheetPage& page : hierarchy.pages) {
        for (const TPageSymbol& symbol : page.symbols) {
            for (const TPagePin& pin : symbol.pins) {
                const QString net = pin.net < 0 ? QString() : hierarchy.nets[static_cast<std::size_t>(pin.net)].name;
                if (!symbol.reference.startsWith(QLatin1Char('#'))) {
                    pins.append(symbol.reference + QLatin1Char('.') + pin.pin->number + QLatin1Char('=') + net);
                }
            }
        }
    }
    pins.sort();
    return pins.join(QLatin1Char(' '));
}
