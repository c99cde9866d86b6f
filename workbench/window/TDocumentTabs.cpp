#include "workbench/window/TDocumentTabs.h"

#include "workbench/window/TCanvas.h"

#include <QSignalBlocker>
#include <QTabBar>

#include <algorithm>

TDocumentTabs::TDocumentTabs(QWidget* parent) : QTabWidget(parent)
{
    setDocumentMode(true);
    setTabBarAutoHide(true);
    setElideMode(Qt::ElideRight);
    tabBar()->setExpanding(false);
    connect(this, &QTabWidget::currentChanged, this, &TDocumentTabs::slotCurrentChanged);
}

void TDocumentTabs::SetDesign(TDesign* newDesign)
{
    const QSignalBlocker blocker(this);
    const QList<TCanvas*> old = Canvases();
    clear();
    qDeleteAll(old); // Now, while their scenes exist.
    design = newDesign;
    documents = design ? design->Documents() : QVector<TDocument>();
    lastPage = 0;
    for (const TDocument& document : qAsConst(documents)) {
        auto* canvas = new TCanvas(this);
        addTab(canvas, QString());
        canvas->Show(document.scene);
        if (document.IsBoard()) {
            design->Board()->SetView(canvas);
        } else if (lastPage == 0) {
            lastPage = document.page;
        }
    }
    UpdateNames();
}

TCanvas& TDocumentTabs::Canvas() const
{
    return *static_cast<TCanvas*>(currentWidget());
}

const TDocument& TDocumentTabs::Document() const
{
    return documents.at(currentIndex());
}

QList<TCanvas*> TDocumentTabs::Canvases() const
{
    QList<TCanvas*> canvases;
    for (int i = 0; i < count(); ++i) {
        canvases.append(static_cast<TCanvas*>(widget(i)));
    }
    return canvases;
}

bool TDocumentTabs::ShowPage(int page)
{
    const auto found = std::find_if(documents.cbegin(), documents.cend(),
                                    [page](const TDocument& document) { return document.page == page; });
    if (found == documents.cend()) {
        return false;
    }
    setCurrentIndex(static_cast<int>(found - documents.cbegin()));
    return true;
}

void TDocumentTabs::UpdateNames()
{
    for (int i = 0; i < documents.size(); ++i) {
        const QString name = design->NameOf(documents[i]);
        setTabToolTip(i, name);
        setTabText(i, QString(name).replace(QLatin1Char('&'), QStringLiteral("&&")));
    }
}

void TDocumentTabs::slotCurrentChanged(int index)
{
    if (index >= 0 && index < documents.size()) {
        if (!documents[index].IsBoard()) {
            lastPage = documents[index].page;
        }
        emit sigShown();
    }
}
