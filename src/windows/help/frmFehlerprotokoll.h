#pragma once

#include <QDialog>

class cErrorLogView;
class cLogTree;
class QLabel;
class QLayout;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

// "Fehlerprotokoll": what went wrong in the last runs, and the ways to hand it to somebody who can help.
class frmFehlerprotokoll final : public QDialog
{
    Q_OBJECT

public:
    // `log` outlives the window.
    explicit frmFehlerprotokoll(cErrorLogView& log, QWidget* parent = nullptr);

private:
    [[nodiscard]] QLayout* BuildFilter();
    void BuildList();
    [[nodiscard]] QLayout* BuildButtons();
    QPushButton* AddButton(QLayout& row, const QString& text, const QString& hint);
    void ShowLine();
    void Filter(const QString& words);
    void Copy();

    cErrorLogView& m_log;
    QLineEdit* m_filter;
    QLabel* m_count;
    cLogTree* m_tree;
    QPlainTextEdit* m_details;
    QPushButton* m_copy = nullptr;
};
