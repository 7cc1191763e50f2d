#pragma once

#include "model/cOwnRule.h"

#include <QAbstractTableModel>
#include <QList>
#include <QString>

#include <memory>

class cRuleTrial;
struct cBookTools;

// The list of the user's own rules for bank transactions. What changes is stored at once, each change as one step that
// can be taken back.
class cRuleListModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum eColumn { Rule, Result, Count, ColumnCount };
    enum eRole { QuietRole = Qt::UserRole }; // bool: switched off, or not readable

    explicit cRuleListModel(const cBookTools& tools, QObject* parent = nullptr);
    ~cRuleListModel() override;

    // A new rule at a place, and another one for that which stands there.
    bool Add(int place, const cOwnRule& rule);
    bool Change(int place, const cOwnRule& rule);
    // Deletes a rule after a question.
    bool Delete(int place);
    bool MoveTo(int place, int target);
    bool Switch(int place, bool isOn);

    // What rules match among the staged transactions.
    [[nodiscard]] const cRuleTrial& Trial() const;
    // How many staged transactions the stored rule at this place decides about.
    [[nodiscard]] int CountAt(int place) const;
    [[nodiscard]] const QList<cOwnRule>& Stored() const { return m_rules; }

    // Headline and hint for a list without rules.
    [[nodiscard]] static QString EmptyTitle();
    [[nodiscard]] static QString EmptyHint();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    void RulesChanged(); // what is stored

private:
    struct cWorks; // the tools of the import floor

    [[nodiscard]] bool IsPlace(int place) const { return place >= 0 && place < m_rules.size(); }
    [[nodiscard]] QString Text(int place, int column) const;
    bool Store(const QList<cOwnRule>& rules, const QString& step);

    const cBookTools& m_tools;
    std::unique_ptr<cWorks> m_works;
    QList<cOwnRule> m_rules;
};
