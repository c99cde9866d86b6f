#include "tests/support/Places.h"
#include "tests/support/TestProgram.h"
#include "tests/workbench/support/ImportedItems.h"
#include "tests/workbench/support/RealDesigns.h"
#include "tests/workbench/support/TBoardText.h"

#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsHoleItem.h>
#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsOutlineItem.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPadItem.h>

#include <QtTest>

#include <cmath>

using ImportedItems::All;
using ImportedItems::millimetre;

namespace {

/** A place to the nanometre, which is the file's own grid: equal places are the same however they were computed. */
using TGridPoint = QPair<qint64, qint64>;

TGridPoint OnGrid(const QPointF& millimetres)
{
    return {qRound64(millimetres.x() * 1e6), qRound64(millimetres.y() * 1e6)};
}

TGridPoint SceneOnGrid(const QPointF& scene)
{
    return OnGrid(scene / millimetre);
}

/** Where the tracks of each net end. */
using TTrackEnds = QHash<QString, QSet<TGridPoint>>;

TTrackEnds TrackEnds(const TBoardText& text)
{
    TTrackEnds ends;
    for (const char* token : {"segment", "arc"}) {
        for (const QString& track : text.Elements(token)) {
            if (track.contains("(net ")) {
                ends[text.Net(track)] << OnGrid(TBoardText::Point(track, "start"))
                                      << OnGrid(TBoardText::Point(track, "end"));
            }
        }
    }
    return ends;
}

/** Whether one of these tracks ends within the pad's copper. */
bool HasEndOnCopper(const TGraphicsPadItem& pad, const QSet<TGridPoint>& ends)
{
    const QPainterPath copper = pad.mapToScene(pad.Outline());
    const QRectF box = copper.boundingRect();
    return std::any_of(ends.begin(), ends.end(), [&copper, &box](const TGridPoint& end) {
        const QPointF scene = QPointF(double(end.first), double(end.second)) * 1e-6 * millimetre;
        return box.contains(scene) && copper.contains(scene);
    });
}

/** Where a pad would be if packages turned the other way round. */
QPointF TurnedWrongly(const TGraphicsPadItem& pad)
{
    const QGraphicsItem& package = *pad.parentItem();
    return package.pos() + QTransform().rotate(-package.rotation()).map(pad.pos());
}

} // namespace

/** Boards that nobody here drew: what was imported is held against the text of the file. */
class TestDesigns : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { designs = Test::RealDesigns("*.kicad_pcb"); }

    void holdsAllItems_data() { AddFiles(designs + sample); }

    void holdsAllItems()
    {
        QFETCH(QString, file);
        const TImportResult imported = ImportBoard(file);
        QCOMPARE(imported.error, QString());
        const TBoardText text(file);
        const auto pads = All<TGraphicsPadItem>(imported);
        const int ties = All<TGraphicsNetTiePcbItem>(imported).size(); // Each was a footprint of two pads.
        QCOMPARE(All<TGraphicsPackageItem>(imported).size() + ties, text.Count("(?:module|footprint)"));
        QCOMPARE(pads.size() + All<TGraphicsHoleItem>(imported).size() + 2 * ties, text.Count("pad"));
        QCOMPARE(All<TGraphicsViaItem>(imported).size(), text.Count("via"));
        QCOMPARE(imported.board->LayerManager()->CopperLayers().size(),
                 text.CountMatches("\\(\\d+ (?:\"[^\"]*\"|[^\\s\"]+) (?:signal|power|mixed|jumper)\\b"));

        const auto netted = std::count_if(pads.begin(), pads.end(), [](auto* pad) { return !pad->Net().isEmpty(); });
        QCOMPARE(int(netted) + 2 * ties, text.CountNettedPads());
        QSet<QString> names(text.Nets().begin(), text.Nets().end());
        for (const TGraphicsPadItem* pad : pads) {
            QVERIFY2(names.contains(pad->Net()), qPrintable(pad->Net()));
            QVERIFY(pad->Width() > 0 && pad->Height() > 0 && pad->parentItem());
        }
    }

    void holdsVias_data() { AddFiles(designs + sample); }

    void holdsVias()
    {
        QFETCH(QString, file);
        const TImportResult imported = ImportBoard(file);
        const TBoardText text(file);
        const auto vias = All<TGraphicsViaItem>(imported);
        const QStringList elements = text.Elements("via");
        QCOMPARE(vias.size(), elements.size());
        for (int i = 0; i < vias.size(); ++i) {
            QCOMPARE(SceneOnGrid(vias[i]->pos()), OnGrid(TBoardText::Point(elements[i], "at")));
            QCOMPARE(vias[i]->Net(), text.Net(elements[i]));
            QCOMPARE(vias[i]->HasTFlag(TGraphicsItem::Lock), elements[i].contains("locked"));
            QCOMPARE(float(vias[i]->Width()), float(TBoardText::Number(elements[i], "size") * millimetre));
        }
    }

    void countsTheRest_data() { AddFiles(designs + sample); }

    void countsTheRest()
    {
        QFETCH(QString, file);
        const TImportResult imported = ImportBoard(file);
        const TBoardText text(file);
        QCOMPARE(ImportedItems::NotShown(imported, "dimensions"), text.Count("dimension"));
        QCOMPARE(ImportedItems::NotShown(imported, "3D models"), text.Count("model"));
        QCOMPARE(ImportedItems::NotShown(imported, "other elements"), 0);
    }

    void holdsTextsAndOutline_data() { AddFiles(designs + sample); }

    void holdsTextsAndOutline()
    {
        QFETCH(QString, file);
        const TImportResult imported = ImportBoard(file);
        const TBoardText text(file);
        // A dimension holds one that is its own; the name of a net tie is drawn with it.
        const int notItems = text.Count("dimension") + All<TGraphicsNetTiePcbItem>(imported).size();
        const int written = text.Count("(?:gr_text|gr_text_box|fp_text|fp_text_box)")
                            + text.CountMatches(R"re(\(property "[^"]*" "[^"]*"\s+\(at)re");
        QCOMPARE(All<TGraphicsTextItem>(imported).size(), written - notItems);
        const bool hasEdge = text.CountMatches("\\(layer \"?Edge\\.Cuts\"?\\)") > 0;
        QVERIFY(All<TGraphicsOutlineItem>(imported).size() <= (hasEdge ? 1 : 0)); // None where no curve is closed.
        const bool isKnown = Test::IsAtHand(file) || sample.contains(file);
        QVERIFY(!isKnown || All<TGraphicsOutlineItem>(imported).size() == 1);
        for (const auto* package : All<TGraphicsPackageItem>(imported)) {
            QVERIFY2(package->RefDesText() || (!isKnown && package->RefDes().isEmpty()), qPrintable(package->RefDes()));
            QVERIFY2(package->ValueText() || (!isKnown && package->Value().isEmpty()), qPrintable(package->RefDes()));
        }
    }

    void putsPadsWhereTracksEnd_data() { AddFiles(designs); }

    void putsPadsWhereTracksEnd()
    {
        QFETCH(QString, file);
        const TImportResult imported = ImportBoard(file);
        const TTrackEnds ends = TrackEnds(TBoardText(file));
        int tracked = 0;
        int reached = 0;
        int turned = 0;
        int met = 0;
        int metIfTurnedWrongly = 0;
        for (const TGraphicsPadItem* pad : All<TGraphicsPadItem>(imported)) {
            const QSet<TGridPoint> endsOfNet = ends.value(pad->Net());
            if (pad->Net().isEmpty() || endsOfNet.isEmpty()) {
                continue;
            }
            ++tracked;
            reached += HasEndOnCopper(*pad, endsOfNet);
            if (std::fmod(pad->parentItem()->rotation(), 180) != 0) {
                ++turned;
                met += endsOfNet.contains(SceneOnGrid(pad->scenePos()));
                metIfTurnedWrongly += endsOfNet.contains(SceneOnGrid(TurnedWrongly(*pad)));
            }
        }
        qInfo("A track ends on %d of %d pads; in the middle of %d of %d of turned packages, of %d if turned wrongly",
              reached, tracked, met, turned, metIfTurnedWrongly);
        if (Test::IsAtHand(file)) {
            QVERIFY(2 * reached > tracked);
            QVERIFY(4 * met >= turned);
            QVERIFY(10 * metIfTurnedWrongly <= met);
        } else { // Boards may not be routed to their end, and packages may be symmetrical.
            constexpr int many = 50;
            QVERIFY(tracked < many || 2 * reached > tracked);
            QVERIFY(turned < many || metIfTurnedWrongly <= met);
        }
    }

private:
    static void AddFiles(const QStringList& files)
    {
        QTest::addColumn<QString>("file");
        if (files.isEmpty()) {
            QSKIP("no real designs");
        }
        for (const QString& file : files) {
            QTest::newRow(qPrintable(QFileInfo(file).fileName())) << file;
        }
    }

    QStringList designs;
    const QStringList sample = {Test::SourcePath("workbench/samples/sample.kicad_pcb")};
};

PROPERTIES_TEST(TestDesigns)
#include "tst_designs.moc"
