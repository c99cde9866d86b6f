#pragma once

#include "workbench/design/TDesign.h"

#include <QTabWidget>

class TCanvas;

/**
 * A tab for each document of a design: the board and the pages of the schematic, each on a canvas of its own, which
 * keeps its zoom. The tabs themselves are shown only if there are several.
 */
class TDocumentTabs : public QTabWidget
{
    Q_OBJECT

public:
    explicit TDocumentTabs(QWidget* parent = nullptr);

    /** Creates the tabs of a design, which must outlive them; null for none. */
    void SetDesign(TDesign* newDesign);

    /** The canvas and the document of the tab that is shown; only with a design. */
    TCanvas& Canvas() const;
    const TDocument& Document() const;
    /** All canvases, in the order of the tabs. */
    QList<TCanvas*> Canvases() const;

    /** Shows the tab of a page, of the board for 0. False if there is no such tab. */
    bool ShowPage(int page);
    /** The page that is shown, or was shown before the board; 0 if there are no pages. */
    int LastPage() const { return lastPage; }

public slots:
    /** Updates the names of the pages. */
    void UpdateNames();

signals:
    /** Another document is shown. Not emitted while the tabs of a design are created. */
    void sigShown();

private slots:
    void slotCurrentChanged(int index);

private:
    TDesign* design = nullptr;
    QVector<TDocument> documents; ///< Parallel to the tabs.
    int lastPage = 0;
};
