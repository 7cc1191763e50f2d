#pragma once

#include <QStringList>
#include <QWidget>

class cImportReview;
class cStagedTree;
class QBoxLayout;
class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;

// The page of bank statements: reads files, shows what is staged with its proposals, books and deletes.
class frmImport final : public QWidget
{
    Q_OBJECT

public:
    explicit frmImport(cImportReview& review, QWidget* parent = nullptr);

    void ChooseFiles(); // lets the user choose statement files and reads them
    void ImportFiles(const QStringList& paths);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QBoxLayout* BuildBar();
    QWidget* BuildDuplicates();
    void Connect();
    void BookSelected();
    void DeleteSelected();
    void TakeChoice(const QModelIndex& index, const QString& text);
    void StageDuplicates();
    void ShowRows();
    void ShowButtons();
    void ShowSummary();

    cImportReview& m_review;
    QPushButton* m_import;
    QPushButton* m_book;
    QPushButton* m_delete;
    QCheckBox* m_openOnly;
    QLineEdit* m_filter;
    QLabel* m_count;
    cStagedTree* m_tree;
    QWidget* m_duplicates;
    QLabel* m_duplicatesTitle;
    QListWidget* m_duplicatesList;
    QPushButton* m_stageDuplicates;
    QPushButton* m_dropDuplicates;
    QPlainTextEdit* m_summary;
};
