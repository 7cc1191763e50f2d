#include "store/cJournal.h"

#include <QScopeGuard>

#include <algorithm>
#include <array>

namespace {

constexpr size_t mostSteps = 200; // kept at a time; older ones are forgotten

constexpr std::array<std::string_view, 5> tables{"data", "datamod", "template", "import", "setting"};
constexpr std::size_t imports = 3;
constexpr std::size_t settings = 4;

// The place of a table in the list; its end for a table that is nobody's step.
std::size_t PlaceOf(std::string_view table)
{
    return static_cast<std::size_t>(std::find(tables.begin(), tables.end(), table) - tables.begin());
}

// The statement that puts a whole row back. The row ID is named as well, because old tables may have no primary key.
std::string InsertText(cDatabase& database, std::string_view table)
{
    std::string columns = "rowid";
    std::string values = "?";
    cRows rows(database, "SELECT name FROM pragma_table_info(?)", {QString::fromLatin1(table)});
    while (rows.Next()) {
        columns += ", \"" + std::string(rows.Bytes(0)) + '"';
        values += ", ?";
    }
    return "INSERT OR REPLACE INTO " + std::string(table) + " (" + columns + ") VALUES (" + values + ")";
}

// The writes that take a step back are one transaction: all of them or none, and one journal file for all.
class cTransaction
{
public:
    explicit cTransaction(cDatabase& database) : m_database(database) { m_database.Execute("BEGIN IMMEDIATE"); }
    cTransaction(const cTransaction&) = delete;
    cTransaction& operator=(const cTransaction&) = delete;
    ~cTransaction()
    {
        if (m_isOpen) {
            m_database.TryExecute("ROLLBACK");
        }
    }

    void Commit()
    {
        m_database.Execute("COMMIT");
        m_isOpen = false;
    }

private:
    cDatabase& m_database;
    bool m_isOpen = true;
};

} // namespace

cJournal::cJournal(cDatabase& database) : m_database(database)
{
    m_database.WatchRows([this](const cRowBefore& row) { Note(row); });
}

cJournal::~cJournal()
{
    m_database.WatchRows({});
}

void cJournal::Begin(const QString& name)
{
    if (m_depth == 0) {
        m_open = {name, {}, {}};
    }
    ++m_depth;
}

void cJournal::End()
{
    --m_depth;
    if (m_depth > 0 || m_open.Images.empty()) {
        return;
    }
    m_undo.push_back(std::exchange(m_open, {}));
    m_redo.clear();
    if (m_undo.size() > mostSteps) {
        m_undo.pop_front();
    }
}

void cJournal::Revert()
{
    const std::size_t parts = m_parts.size();
    while (!m_parts.empty()) {
        EndPart(); // the oldest image of each row counts
    }
    (void)Apply(m_open);
    m_open.Images.clear();
    m_open.Known.clear();
    m_parts.resize(parts);
}

void cJournal::BeginPart()
{
    m_parts.push_back({m_open.Images.size(), {}});
}

void cJournal::EndPart()
{
    cPart part = std::move(m_parts.back());
    m_parts.pop_back();
    if (Known().empty()) {
        Known() = std::move(part.Known); // all images are those of the part
        return;
    }
    const auto isOlderKnown = [this](const cImage& image) { return !Known().insert(image.Key).second; };
    std::vector<cImage>& images = m_open.Images;
    const auto begin = images.begin() + static_cast<std::ptrdiff_t>(part.First);
    images.erase(std::remove_if(begin, images.end(), isOlderKnown), images.end());
}

void cJournal::RevertPart()
{
    cPart& part = m_parts.back();
    const auto begin = m_open.Images.begin() + static_cast<std::ptrdiff_t>(part.First);
    (void)Apply({{}, {begin, m_open.Images.end()}, {}});
    m_open.Images.erase(begin, m_open.Images.end());
    part.Known.clear();
}

std::set<cJournal::cRowKey>& cJournal::Known()
{
    return m_parts.empty() ? m_open.Known : m_parts.back().Known;
}

void cJournal::Note(const cRowBefore& row)
{
    const cRowKey key{PlaceOf(row.Table), row.RowId};
    if (key.first == tables.size()) {
        return;
    }
    if (m_back == nullptr && m_depth == 0) {
        // A write outside of all steps: what they know may not be true any more. Only choices of the view are stored
        // all the time and are nobody's step.
        if (key.first != settings) {
            Forget();
        }
        return;
    }
    if (!(m_back != nullptr ? m_back->Known : Known()).insert(key).second) {
        return;
    }
    (m_back != nullptr ? *m_back : m_open).Images.push_back({key, row.IsThere ? row.Values() : cBoundList{}});
}

QString cJournal::UndoName() const
{
    return m_undo.empty() ? QString() : m_undo.back().Name;
}

QString cJournal::RedoName() const
{
    return m_redo.empty() ? QString() : m_redo.back().Name;
}

void cJournal::Undo()
{
    if (!m_undo.empty()) {
        m_redo.push_back(Apply(m_undo.back()));
        m_undo.pop_back();
    }
}

void cJournal::Redo()
{
    if (!m_redo.empty()) {
        m_undo.push_back(Apply(m_redo.back()));
        m_redo.pop_back();
    }
}

void cJournal::Forget()
{
    m_open = {m_open.Name, {}, {}};
    std::fill(m_parts.begin(), m_parts.end(), cPart());
    m_undo.clear();
    m_redo.clear();
}

cJournal::cStep cJournal::Apply(const cStep& step)
{
    cStep back{step.Name, {}, {}};
    if (step.Images.empty()) {
        return back; // a book that can only be read has no more than that
    }
    cTransaction transaction(m_database);
    m_back = &back;
    const auto done = qScopeGuard([this] { m_back = nullptr; });
    WriteBack(step.Images);
    transaction.Commit();
    return back;
}

void cJournal::WriteBack(const std::vector<cImage>& images)
{
    // What was not there goes first: a setting that comes back may bear the name of one that goes.
    for (const cImage& image : images) {
        if (image.Values.empty()) {
            m_database.Execute("DELETE FROM " + std::string(tables[image.Key.first]) + " WHERE rowid = ?",
                               {image.Key.second});
        }
    }
    std::array<std::string, tables.size()> inserts;
    for (const auto& [key, values] : images) {
        if (!values.empty()) {
            std::string& insert = inserts[key.first];
            if (insert.empty()) {
                insert = InsertText(m_database, tables[key.first]);
            }
            cBoundList bound{key.second};
            bound.insert(bound.end(), values.begin(), values.end());
            m_database.Execute(insert, bound);
        }
    }
    if (std::any_of(images.begin(), images.end(), [](const cImage& image) { return image.Key.first == imports; })) {
        m_database.NoteImportWrite();
    }
}
