#pragma once

#include <QDialog>

class cManualBrowser;
class cReportView;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QSplitter;
class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;

// The manual: contents or what a search found on the left, the page on the right. It has no parent, so that it stands
// beside every window, and it can be used also while a dialog waits for an answer.
class frmHandbuch final : public QDialog
{
    Q_OBJECT

public:
    explicit frmHandbuch(cManualBrowser& browser);

    void Present(); // in front, with the place where the browser is

protected:
    bool event(QEvent* event) override;

private:
    void Build();
    QLayout* BuildBar();
    QWidget* BuildSides();
    void Connect();
    void FillContents();
    void Search();
    void ShowSide(QTreeWidget& side);
    void ShowPlace();
    void MarkContents();
    void ShowButtons();
    void Leave(void (cManualBrowser::*way)());
    void OpenItem(const QTreeWidgetItem* item);
    void OpenHit(const QTreeWidgetItem* hit);
    [[nodiscard]] QString Word() const; // that is marked on the page: the first one that is looked for
    void OpenPlace(const QString& address);
    void StayUsable();

    cManualBrowser& m_browser;
    QPushButton* m_back;
    QPushButton* m_forward;
    QLineEdit* m_search;
    QLabel* m_found;
    QSplitter* m_sides;
    QStackedWidget* m_side;
    QTreeWidget* m_contents;
    QTreeWidget* m_hits;
    cReportView* m_page;
    QString m_shown; // the page that m_page holds
};
