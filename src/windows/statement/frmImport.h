#pragma once

#include <QStringList>
#include <QWidget>

class cImportReview;
class cStagedPanel;
class cSummaryText;
class QAction;
class QPushButton;

// The page of bank statements: reads files, shows what is staged with its proposals, books and deletes.
class frmImport final : public QWidget
{
    Q_OBJECT

public:
    explicit frmImport(cImportReview& review, QWidget* parent = nullptr);

    void ChooseFiles(); // lets the user choose statement files and reads them
    void ImportFiles(const QStringList& paths);

    // Opens the window for the rows that came with the same import as this one, or with the latest one for row 0.
    void ReviewImport(int rowId = 0);

    void ResetLayout(); // of the columns, as the settings have it now

Q_SIGNALS:
    void StatementRequested(); // the rows of an account with its balances

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void Build();
    void Connect();
    void SetAssistant();
    void ChooseWithAssistant();
    void ReadAgain();
    void ShowRows();
    void ShowStaged(const QList<int>& ids);
    void ShowSummary();

    cImportReview& m_review;
    QPushButton* m_import;
    QAction* m_assistant;
    QAction* m_again;
    QAction* m_statement;
    QPushButton* m_reviewImport; // offered while the summary of an import is in sight
    cStagedPanel* m_panel;
    cSummaryText* m_summary;
};
