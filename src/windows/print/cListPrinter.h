#pragma once

#include "windows/print/cPageText.h"
#include "windows/print/cPrintable.h"
#include "windows/print/cPrintColumns.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class cStatementListModel;
class cEntryListModel;
class cMainModel;
class QModelIndex;

// A list on paper: title and view at the top, column heads on every page, groups with their sums, and the sums
// of the list at the end. Black on white, whatever the program looks like. Takes its texts out of the model at once.
class cListPrinter final : public cPrintable
{
public:
    struct cSum
    {
        QString Title;
        QString Amount;
    };

    struct cHead
    {
        QString Title;
        QStringList View; // lines under the title
        QString Foot;     // at the left of every page's end
        QList<cSum> Sums; // under the list
    };

    // What the main window looks at, in words.
    [[nodiscard]] static cHead HeadOf(const cMainModel& model);

    // The statement of a bank account as it is shown.
    explicit cListPrinter(const cStatementListModel& statement);
    // `columns` of the model in the order in which they are printed.
    cListPrinter(const cEntryListModel& model, const QList<int>& columns, cHead head);
    ~cListPrinter() override;

    [[nodiscard]] QString Title() const override { return m_head.Title; }
    int LayOut(QPaintDevice& device, const QRectF& area) override;
    void PaintPage(QPainter& painter, int page) const override;

private:
    struct cRow
    {
        QStringList Cells; // of a group: name and sum
        bool IsGroup = false;
    };
    struct cPage
    {
        std::size_t First = 0;  // row
        std::size_t Count = 0;  // rows
        qsizetype Heading = -1; // group that goes on from the page before; -1 for none
        bool HasSums = false;
    };
    class cFlow;

    void TakeRows(const cEntryListModel& model, const QList<int>& columns);
    void TakeRow(const QModelIndex& index, const QList<int>& columns);
    [[nodiscard]] static cHead HeadOf(const cStatementListModel& statement);
    void BreakPages();
    [[nodiscard]] qreal RowHeight(const cRow& row) const;
    [[nodiscard]] qreal HeadHeight() const; // of title and view, on the first page
    [[nodiscard]] qreal ColumnHeadHeight() const;
    [[nodiscard]] qreal SumsHeight() const;
    [[nodiscard]] qreal SumRight() const; // where sums end
    void PaintHead(QPainter& painter, qreal& y) const;
    void PaintColumnHeads(QPainter& painter, qreal& y) const;
    void PaintGroup(QPainter& painter, const QString& name, const QString& sum, qreal& y) const;
    void PaintRow(QPainter& painter, const cRow& row, qreal& y) const;
    void PaintSums(QPainter& painter, qreal y) const;
    void PaintFoot(QPainter& painter, int page) const;

    cHead m_head;
    cPrintColumns m_columns;
    std::vector<cRow> m_rows;
    std::vector<cPage> m_pages;
    std::unique_ptr<cPageText> m_text; // fonts and measures of the device
    QRectF m_area;
};
