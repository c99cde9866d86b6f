#include "properties/sets/TPropertySetForPour.h"

#include "properties/commands/TCmdPour.h"
#include "properties/rows/TPropertyIntSpin.h"
#include "properties/sets/CompositionModes.h"
#include "properties/sets/RowValues.h"
#include "properties/sets/Selection.h"

/** What the rows show of a pour. */
struct TPropertySetForPour::Values
{
    Values() = default;
    explicit Values(const TGraphicsPourItem& pour);

    double clearanceToEtch = 0;
    double clearanceToBorder = 0;
    double clearanceToPour = 0;
    int fillType = Qt::NoBrush;
    double lineWidth = 0;
    double minimumArea = 0;
    bool onlyConnected = false;
    int priority = 0;
    bool thermalEnable = false;
    double thermalLine = 0;
    double thermalIsolation = 0;
    int compositionMode = 0;
    Osmirel::Layer layer = Osmirel::NoLayer;
    QString net;
};

TPropertySetForPour::Values::Values(const TGraphicsPourItem& pour)
    : clearanceToEtch(pour.ClearanceToEtch()),
      clearanceToBorder(pour.ClearanceToBorder()),
      clearanceToPour(pour.ClearanceToPour()),
      fillType(pour.FillType()),
      lineWidth(pour.LineWidth()),
      minimumArea(pour.MinimumArea()),
      onlyConnected(pour.OnlyConnected()),
      priority(pour.Priority()),
      thermalEnable(pour.ThermalEnable()),
      thermalLine(pour.ThermalLine()),
      thermalIsolation(pour.ThermalIsolation()),
      compositionMode(pour.CompositionMode()),
      layer(pour.Layer()),
      net(pour.Net())
{}

TPropertySetForPour::TPropertySetForPour(QList<TGraphicsItem*> selection, QList<Osmirel::Layer> layers)
    : TPropertySet(Selection::IsSingle(selection) ? tr("Pour") : tr("Pours")),
      pours(Selection::Pick<Attributes::OfKind<ItemType::Pour>, TGraphicsPourItem>(selection))
{
    // Intended: without a pour the rows show a value-initialised record.
    const Values shown = pours.isEmpty() ? Values() : Values(*pours.last());
    MakeFillRows(shown);
    MakeClearanceAndThermalRows(shown);
    MakeDrawingRows(shown, layers, Selection::WorkspaceOf(selection));

    // Intended: the rows for border clearance, connection, composition mode and alpha are created but not shown.
    AddProperties({clearanceToEtch, clearanceToPour, fillType, lineWidth, minimumArea, priority, thermalEnable,
                   thermalLine, thermalIsolation, layer, net});
}

TPropertyFloatSpin* TPropertySetForPour::NewLengthRow(const QString& label, double sceneLength, const char* slot)
{
    auto* row = NewRow<TPropertyFloatSpin>(label, 0.0, 100.0, 0.1, 2);
    row->spin->setValue(Units::MillimetresFromScene(sceneLength));
    connect(row, SIGNAL(sigValueChanged(qreal)), this, slot);
    return row;
}

void TPropertySetForPour::MakeFillRows(const Values& shown)
{
    fillType = NewRow<TPropertyEnum>(tr("Fill type:"));
    fillType->AddItem(tr("No fill"), Qt::NoBrush);
    fillType->AddItem(tr("Solid"), Qt::SolidPattern);
    fillType->AddItem(tr("H-Lines"), Qt::HorPattern);
    fillType->AddItem(tr("V-Lines"), Qt::VerPattern);
    fillType->AddItem(tr("Cross"), Qt::CrossPattern);
    fillType->SetCurrentEnum(shown.fillType);
    connect(fillType, SIGNAL(sigEnumChanged(int)), this, SLOT(SetFillType(int)));
    connect(fillType, SIGNAL(sigEnumChanged(int)), this, SLOT(FillTypeChanged(int)));

    lineWidth = NewLengthRow(tr("Line width:"), shown.lineWidth, SLOT(SetLineWidth(qreal)));

    constexpr QChar superscriptTwo(178);
    minimumArea = NewRow<TPropertyFloatSpin>(tr("Minimum area:"), 0.0, 9999.0, 1.0, 0);
    RowValues::Show(*minimumArea, shown.minimumArea, tr(" mm") + superscriptTwo);
    connect(minimumArea, SIGNAL(sigValueChanged(qreal)), this, SLOT(SetMinimumArea(qreal)));

    onlyConnected = NewRow<TPropertyCheck>(tr("Only connected:"));
    onlyConnected->SetCurrentState(shown.onlyConnected);
    connect(onlyConnected, SIGNAL(sigStateChanged(bool)), this, SLOT(SetOnlyConnected(bool)));

    priority = NewRow<TPropertyIntSpin>(tr("Priority:"), 0, 15, 1);
    priority->SetCurrentValue(shown.priority);
    connect(priority, SIGNAL(sigValueChanged(int)), this, SLOT(SetPriority(int)));
}

void TPropertySetForPour::MakeClearanceAndThermalRows(const Values& shown)
{
    clearanceToEtch = NewLengthRow(tr("Clearance to etch:"), shown.clearanceToEtch, SLOT(SetClearanceToEtch(qreal)));
    clearanceToBorder =
        NewLengthRow(tr("Clearance to border:"), shown.clearanceToBorder, SLOT(SetClearanceToBorder(qreal)));
    clearanceToPour = NewLengthRow(tr("Clearance to pour:"), shown.clearanceToPour, SLOT(SetClearanceToPour(qreal)));

    thermalEnable = NewRow<TPropertyCheck>(tr("Thermal enable:"));
    thermalEnable->SetCurrentState(shown.thermalEnable);
    connect(thermalEnable, SIGNAL(sigStateChanged(bool)), this, SLOT(SetThermalEn(bool)));

    thermalLine = NewLengthRow(tr("Thermal line:"), shown.thermalLine, SLOT(SetThermalLine(qreal)));
    thermalIsolation = NewLengthRow(tr("Thermal isolation:"), shown.thermalIsolation, SLOT(SetThermalIsol(qreal)));
}

void TPropertySetForPour::MakeDrawingRows(const Values& shown, const QList<Osmirel::Layer>& layers,
                                          TWorkspace* workspace)
{
    layer = NewRow<TPropertyLayer>(tr("Layer:"), layers, workspace);
    if (shown.layer != Osmirel::NoLayer) {
        layer->SetCurrentLayer(shown.layer);
    }
    connect(layer, SIGNAL(sigLayerChanged(Osmirel::Layer)), this, SLOT(SetLayer(Osmirel::Layer)));

    net = NewRow<TPropertyText>(tr("Net:"), shown.net, false);
    connect(net, SIGNAL(sigTextChanged(QString)), this, SLOT(SetNet(QString)));

    compositionMode = NewRow<TPropertyEnum>(QStringLiteral("Comp mode:"));
    CompositionModes::AddTo(*compositionMode);
    compositionMode->SetCurrentEnum(shown.compositionMode);
    connect(compositionMode, SIGNAL(sigEnumChanged(int)), this, SLOT(SetCompMode(int)));

    constexpr int shownAlpha = 130; // Intended: whatever the pours hold.
    alpha = NewRow<TPropertyIntSpin>(tr("Alpha"), 0, 255, 1);
    alpha->SetCurrentValue(shownAlpha);
    connect(alpha, SIGNAL(sigValueChanged(int)), this, SLOT(SetAlpha(int)));
}

template <class Command, class Value>
void TPropertySetForPour::EmitFor(const Value& value)
{
    if (!pours.isEmpty()) {
        Emit(new Command(pours, value));
    }
}

void TPropertySetForPour::SetClearanceToEtch(qreal clearance)
{
    EmitFor<TCmdPourClEtch>(clearance);
}

void TPropertySetForPour::SetClearanceToBorder(qreal clearance)
{
    EmitFor<TCmdPourClBorder>(clearance);
}

void TPropertySetForPour::SetClearanceToPour(qreal clearance)
{
    EmitFor<TCmdPourClPour>(clearance);
}

void TPropertySetForPour::SetFillType(int brushStyle)
{
    EmitFor<TCmdPourFillType>(brushStyle);
}

void TPropertySetForPour::SetLineWidth(qreal width)
{
    EmitFor<TCmdPourLineWidth>(width);
}

void TPropertySetForPour::SetMinimumArea(qreal area)
{
    EmitFor<TCmdPourMinArea>(area);
}

void TPropertySetForPour::SetOnlyConnected(bool on)
{
    EmitFor<TCmdPourOnlyConn>(on);
}

void TPropertySetForPour::SetPriority(int newPriority)
{
    EmitFor<TCmdPourPrio>(static_cast<unsigned char>(newPriority));
}

void TPropertySetForPour::SetThermalEn(bool on)
{
    EmitFor<TCmdPourThermEn>(on);
}

void TPropertySetForPour::SetThermalLine(qreal width)
{
    EmitFor<TCmdPourThermLine>(width);
}

void TPropertySetForPour::SetThermalIsol(qreal distance)
{
    EmitFor<TCmdPourThermIsol>(distance);
}

void TPropertySetForPour::SetLayer(Osmirel::Layer newLayer)
{
    EmitFor<TCmdPourLayer>(newLayer);
}

void TPropertySetForPour::SetNet(QString newNet)
{
    EmitFor<TCmdPourNet>(newNet);
}

void TPropertySetForPour::FillTypeChanged(int brushStyle)
{
    if (lineWidth) {
        lineWidth->SetEnabled(brushStyle != Qt::SolidPattern);
    }
}

void TPropertySetForPour::ThermalTypeChanged(int type)
{
    constexpr int solid = 1;
    if (thermalLine) {
        thermalLine->SetEnabled(type != solid);
    }
}

void TPropertySetForPour::SetCompMode(int mode)
{
    WriteAll(pours, [mode](TGraphicsPourItem& pour) {
        pour.SetCompositionMode(mode);
        pour.update();
    });
}

void TPropertySetForPour::SetAlpha(int newAlpha)
{
    WriteAll(pours, [newAlpha](TGraphicsPourItem& pour) {
        pour.SetAlpha(newAlpha);
        pour.update();
    });
}
