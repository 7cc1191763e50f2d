#pragma once

#include "views/report/cReportFigures.h"

#include <QList>
#include <QTreeView>

class cReportTreeModel;

// The figures of a report as a tree. What is open and chosen stays so when the figures change.
class cReportTree final : public QTreeView
{
    Q_OBJECT

public:
    explicit cReportTree(cReportTreeModel& model, QWidget* parent = nullptr);

Q_SIGNALS:
    void EntriesRequested(const cReportNode& node); // a click on a line, or the Enter key
    void EditRequested(const cReportNode& node);    // its category

private:
    void AddActions();
    void Request(const QModelIndex& index);
    void Keep();
    void Restore();
    void Open();

    // As it looked before the figures changed.
    struct cLook
    {
        eReport Type = eReport::Average;
        QList<cReportNode> Expanded;
        std::optional<cReportNode> Current;
    };

    cReportTreeModel& m_model;
    cLook m_kept;
};
