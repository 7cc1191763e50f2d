#include "store/cJournal.h"

#include <algorithm>

namespace {

constexpr size_t mostSteps = 200; // kept at a time; older ones are forgotten

const char* TableName(cJournal::eTable table)
{
    switch (table) {
    case cJournal::eTable::Data: return "data";
    case cJournal::eTable::FixMods: return "datamod";
    case cJournal::eTable::Templates: return "template";
    case cJournal::eTable::Imports: return "import";
    case cJournal::eTable::Settings: return "setting";
    }
    return "";
}

// "INSERT OR REPLACE INTO t VALUES (?, ?, ...)": the first column of every table is its ID.
std::string InsertText(cJournal::eTable table, size_t columns)
{
    std::string text = std::string("INSERT OR REPLACE INTO ") + TableName(table) + " VALUES (?";
    for (size_t i = 1; i < columns; ++i) {
        text += ", ?";
    }
    return text + ")";
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
    const auto isOlderKnown = [this](const cImage& image) { return !Known().insert({image.Table, image.Id}).second; };
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

std::set<std::pair<cJournal::eTable, qint64>>& cJournal::Known()
{
    return m_parts.empty() ? m_open.Known : m_parts.back().Known;
}

bool cJournal::IsNoting(eTable table)
{
    if (m_depth > 0) {
        return true;
    }
    // Choices of the view are stored all the time and are nobody's step.
    if (table != eTable::Settings) {
        Forget();
    }
    return false;
}

void cJournal::Note(cImage image)
{
    if (Known().insert({image.Table, image.Id}).second) {
        m_open.Images.push_back(std::move(image));
    }
}

void cJournal::Keep(eTable table, const std::string& where, const cBoundList& values)
{
    if (!IsNoting(table)) {
        return;
    }
    cRows rows(m_database, std::string("SELECT * FROM ") + TableName(table) + " WHERE " + where, values);
    while (rows.Next()) {
        Note({table, rows.Integer(0), rows.Values()});
    }
}

void cJournal::NoteAdded(eTable table, qint64 id)
{
    if (IsNoting(table)) {
        Note({table, id, {}});
    }
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

cJournal::cImage cJournal::Current(eTable table, qint64 id)
{
    cRows rows(m_database, std::string("SELECT * FROM ") + TableName(table) + " WHERE ID = ?", {id});
    return {table, id, rows.Next() ? rows.Values() : cBoundList{}};
}

cJournal::cStep cJournal::Apply(const cStep& step)
{
    cStep back{step.Name, {}, {}};
    if (step.Images.empty()) {
        return back; // a book that can only be read has no more than that
    }
    cTransaction transaction(m_database);
    for (const cImage& image : step.Images) {
        back.Images.push_back(Current(image.Table, image.Id));
        back.Known.insert({image.Table, image.Id});
    }
    // What was not there goes first: a setting that comes back may bear the name of one that goes.
    for (const cImage& image : step.Images) {
        if (image.Values.empty()) {
            Write(image);
        }
    }
    for (const cImage& image : step.Images) {
        if (!image.Values.empty()) {
            Write(image);
        }
    }
    transaction.Commit();
    return back;
}

void cJournal::Write(const cImage& image)
{
    if (image.Values.empty()) {
        m_database.Execute(std::string("DELETE FROM ") + TableName(image.Table) + " WHERE ID = ?", {image.Id});
    } else {
        m_database.Execute(InsertText(image.Table, image.Values.size()), image.Values);
    }
    if (image.Table == eTable::Imports) {
        m_database.NoteImportWrite();
    }
}
