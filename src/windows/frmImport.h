#pragma once

#include <QStringList>
#include <QWidget>

class cImportReview;
class cStagedTree;
class QAction;
class QBoxLayout;
class QCheckBox;
class QKeySequence;
class QLabel;
class QLineEdit;
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
    QPushButton* BuildMore();
    void Connect();
    void ConnectActions();
    void AddKey(const QKeySequence& keys, QPushButton* button);
    void BookSelected();
    void Match();
    void AssignSelected();
    void ReleaseSelected();
    void DeleteSelected();
    void TakeChoice(const QModelIndex& index, const QString& text);
    void ShowRows();
    void ShowButtons();
    void ShowSummary();

    cImportReview& m_review;
    QPushButton* m_import;
    QPushButton* m_book;
    QPushButton* m_match;
    QPushButton* m_assign;
    QAction* m_release;
    QAction* m_delete;
    QCheckBox* m_openOnly;
    QLineEdit* m_filter;
    QLabel* m_count;
    cStagedTree* m_tree;
    QPlainTextEdit* m_summary;
};
