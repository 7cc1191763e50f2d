#include "store/cDataAccess.h"
#include "store/cDatabase.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char* selectTemplate =
    "SELECT ID, EntryType, EntryInterval, TemplateType, TemplateVisible, TemplateCategory, TemplateName, "
    "TemplateComment, TemplatePriority, TemplateVAT, TemplateDefaultValue FROM template";

cBoundList TemplateValues(const cTemplateItem& item)
{
    return {item.EntryType,
            item.EntryInterval,
            item.TemplateType,
            item.TemplateVisible,
            modTemplate::CleanName(item.TemplateCategory),
            modTemplate::CleanName(item.TemplateName),
            item.TemplateComment,
            item.TemplatePriority,
            item.TemplateVAT,
            item.TemplateDefaultValue};
}

cTemplateItem ReadTemplate(const cRows& row)
{
    return {
        .ID = static_cast<int>(row.Integer(0)),
        .EntryType = row.Text(1),
        .EntryInterval = row.Text(2),
        .TemplateType = row.Text(3),
        .TemplateVisible = row.Text(4),
        .TemplateCategory = row.Text(5),
        .TemplateName = row.Text(6),
        .TemplateComment = row.Text(7),
        .TemplatePriority = row.Text(8),
        .TemplateVAT = row.Text(9),
        .TemplateDefaultValue = row.Text(10),
    };
}

cTemplateItemList ReadTemplates(cDatabase& database, const char* rest, const cBoundList& values)
{
    cTemplateItemList items;
    cRows rows(database, std::string(selectTemplate) + rest, values);
    while (rows.Next()) {
        items.append(ReadTemplate(rows));
    }
    return items;
}

std::optional<cTemplateItem> First(const cTemplateItemList& items)
{
    return items.isEmpty() ? std::nullopt : std::optional(items.first());
}

} // namespace

bool cDataAccess::AddNewTemplate(cTemplateItem& item)
{
    const bool isAdded = Write("AddNewTemplate", [&] {
        m_database.Execute("INSERT INTO template (EntryType,  EntryInterval, TemplateType, TemplateVisible, "
                           "TemplateCategory, TemplateName, TemplateComment, TemplatePriority, TemplateVAT, "
                           "TemplateDefaultValue) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
                           TemplateValues(item));
        item = First(ReadTemplates(m_database, " ORDER BY ID DESC LIMIT 1", {})).value_or(item);
    });
    return isAdded && JoinGroups(item);
}

bool cDataAccess::WriteTemplate(const cTemplateItem& item)
{
    return Write("ChangeTemplate", [&] {
        cBoundList values = TemplateValues(item);
        values.emplace_back(item.ID);
        m_database.Execute("UPDATE template SET EntryType=?, EntryInterval=?, TemplateType=?, TemplateVisible=?, "
                           "TemplateCategory=?, TemplateName=?, TemplateComment=?, TemplatePriority=?, TemplateVAT=?, "
                           "TemplateDefaultValue=? WHERE ID = ?",
                           values);
    });
}

bool cDataAccess::DeleteTemplate(int id)
{
    return Write("DeleteTemplate", [&] { m_database.Execute("DELETE FROM template WHERE ID = ?", {id}); });
}

cTemplateItemList cDataAccess::GetTemplates()
{
    cTemplateItemList items;
    Read("GetTemplates", [&] { items = ReadTemplates(m_database, "", {}); });
    return items;
}

cTemplateItemList cDataAccess::UncleanTemplates()
{
    cTemplateItemList items;
    Read("GetTemplates", [&] {
        items = ReadTemplates(m_database, " WHERE COALESCE(TemplateCategory, '') || COALESCE(TemplateName, '') GLOB ?",
                              {u"*[&'<>\";]*"_s});
    });
    return items;
}

cTemplateItemList cDataAccess::GetAccounts()
{
    cTemplateItemList items;
    Read("GetAccounts", [&] { items = ReadTemplates(m_database, " WHERE TemplateType LIKE 'Konto'", {}); });
    return items;
}

std::optional<cTemplateItem> cDataAccess::FindTemplate(int id)
{
    std::optional<cTemplateItem> item;
    Read("FindTemplate", [&] { item = First(ReadTemplates(m_database, " WHERE ID = ?", {id})); });
    return item;
}

std::optional<cTemplateItem> cDataAccess::FindTemplate(const QString& category, const QString& name)
{
    std::optional<cTemplateItem> item;
    Read("FindTemplate", [&] {
        item = First(ReadTemplates(m_database, " WHERE TemplateCategory = ? AND TemplateName = ?", {category, name}));
    });
    return item;
}

std::optional<cTemplateItem> cDataAccess::FindAccount(const QString& name)
{
    std::optional<cTemplateItem> item;
    Read("FindAccount", [&] {
        item = First(ReadTemplates(m_database, " WHERE TemplateName = ? AND TemplateType = 'Konto'", {name}));
    });
    return item;
}
