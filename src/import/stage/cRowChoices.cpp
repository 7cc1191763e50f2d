#include "import/stage/cRowChoices.h"

#include "core/cSettings.h"
#include "import/stage/cImportHiveCache.h"
#include "import/stage/modRowDigest.h"
#include "model/cTemplateItem.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"

#include <QStringList>

namespace {

// One line for each row. The IDs of rows that are gone come again, so the row is named by its digest as well.
enum eField { Id, Digest, Category, Interval, Description, FieldCount };

QList<QStringList> Lines(const QString& text)
{
    QList<QStringList> lines;
    const QStringList texts = text.split(u'\n', Qt::SkipEmptyParts);
    for (const QString& each : texts) {
        if (const QStringList fields = each.split(u'\t'); fields.size() == FieldCount) {
            lines.append(fields);
        }
    }
    return lines;
}

QString ToText(const QList<QStringList>& lines)
{
    QStringList texts;
    for (const QStringList& fields : lines) {
        texts.append(fields.join(u'\t'));
    }
    return texts.join(u'\n');
}

} // namespace

// A book is open long before somebody asks for its rows.
QMap<int, cRowChoices::cChoice>& cRowChoices::Choices()
{
    if (!m_isRead) {
        Read();
    }
    return m_choices;
}

cRowChoices::cChoice cRowChoices::Of(int rowId)
{
    return Choices().value(rowId);
}

void cRowChoices::Read()
{
    m_isRead = true;
    m_choices.clear();
    const QString stored = m_parts.Settings.Get(modSettingKey::RowChoices);
    if (stored.isEmpty()) {
        return; // without a look at the rows, which may not be wanted at all
    }
    const cImportHive& hive = m_parts.Hive.GetImportHive();
    const QStringList paths = modTemplate::Paths(m_parts.Data.GetTemplates());
    if (hive.Count() == 0
        || paths.isEmpty()) { // perhaps they could not be read: what was chosen stays for the next time
        m_isRead = false;
        return;
    }
    for (const QStringList& fields : Lines(stored)) {
        const std::optional<cImportEntry> row = hive.GetImportEntryByID(fields.at(Id).toInt());
        const QString category = paths.contains(fields.at(Category)) ? fields.at(Category) : QString();
        const bool hasAny = !category.isEmpty() || !fields.at(Interval).isEmpty() || !fields.at(Description).isEmpty();
        if (hasAny && row && !row->ImportAssigned && modRowDigest::Of(*row) == fields.at(Digest)) {
            m_choices.insert(row->ID, {*row, category, fields.at(Interval), fields.at(Description)});
        }
    }
    Store();
}

void cRowChoices::Take(const QList<int>& rowIds, QString cChoice::*field, const QString& value)
{
    QMap<int, cChoice>& choices = Choices();
    if (!m_isRead) {
        return;
    }
    const cImportHive& hive = m_parts.Hive.GetImportHive();
    for (const int id : rowIds) {
        if (const std::optional<cImportEntry> row = hive.GetImportEntryByID(id)) {
            cChoice& choice = choices[id];
            choice.Row = *row;
            choice.*field = value;
        }
    }
    Store();
}

void cRowChoices::Store()
{
    QList<QStringList> lines;
    for (const cChoice& choice : std::as_const(m_choices)) {
        lines.append({QString::number(choice.Row.ID), modRowDigest::Of(choice.Row), choice.Category, choice.Interval,
                      choice.Description});
    }
    const QString text = ToText(lines);
    if (text != m_parts.Settings.Get(modSettingKey::RowChoices)) {
        (void)(text.isEmpty() ? m_parts.Settings.Delete(modSettingKey::RowChoices)
                              : m_parts.Settings.Set(modSettingKey::RowChoices, text)); // the user hears of a refusal
    }
}

bool cRowChoices::RenameCategory(cSettings& settings, const QString& oldPath, const QString& newPath)
{
    const QString stored = settings.Get(modSettingKey::RowChoices);
    QList<QStringList> lines = Lines(stored);
    for (QStringList& fields : lines) {
        if (fields.at(Category) == oldPath) {
            fields[Category] = newPath;
        }
    }
    const QString text = ToText(lines);
    return text == stored || settings.Set(modSettingKey::RowChoices, text);
}
