#include "store/cJournal.h"

#include "store/modFailure.h"

#include <QScopeGuard>

#include <algorithm>
#include <array>
#include <iterator>

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

// Removes what was not there. Rows that were added one after the other, as those of an import, go in one statement.
template <typename tImages>
void TakeOut(cDatabase& database, const tImages& images)
{
    for (auto first = images.begin(); first != images.end();) {
        auto end = std::next(first);
        if (first->Values.empty()) {
            const auto [table, firstId] = first->Key;
            qint64 lastId = firstId;
            for (; end != images.end() && end->Values.empty() && end->Key == std::pair(table, lastId + 1); ++end) {
                ++lastId;
            }
            database.Execute("DELETE FROM " + std::string(tables[table]) + " WHERE rowid BETWEEN ? AND ?",
                             {firstId, lastId});
        }
        first = end;
    }
}

} // namespace

cJournal::cJournal(cDatabase& database, cUser& user) : m_database(database), m_user(user)
{
    m_database.WatchRows([this](const cRowBefore& row) { Note(row); });
}

cJournal::~cJournal()
{
    m_database.WatchRows({});
}

bool cJournal::Try(const char16_t* operation, const std::function<void()>& action)
{
    try {
        action();
        return true;
    } catch (const std::exception& error) {
        modFailure::Show(m_user, QString::fromUtf16(operation), error);
        return false;
    }
}

void cJournal::Begin(const QString& name, eWrites writes)
{
    if (m_depth == 0) {
        m_open = {name, {}, {}};
        m_writes = writes;
        m_database.Gather(writes);
    }
    ++m_depth;
}

bool cJournal::End()
{
    --m_depth;
    if (m_depth > 0) {
        return true;
    }
    const bool isWritten = Try(u"EndStep", [this] { m_database.CommitGathered(); });
    m_database.EndGathering();
    cStep step = std::exchange(m_open, {});
    (void)Try(u"EndStep", [&] { ForgetPassing(step); });
    m_timesPutBack += isWritten ? 0 : 1;
    const bool isKept = isWritten && !step.Images.empty();
    if (isKept) {
        m_undo.push_back(std::move(step));
        m_redo.clear();
        if (m_undo.size() > mostSteps) {
            m_undo.pop_front();
        }
    }
    if (m_tell) {
        m_tell(isKept);
    }
    return isWritten;
}

void cJournal::Revert()
{
    const std::size_t parts = m_parts.size();
    while (!m_parts.empty()) {
        cPart part = std::move(m_parts.back());
        m_parts.pop_back();
        Join(std::move(part)); // the oldest image of each row counts
    }
    m_database.DropGathered();
    ++m_timesPutBack;
    if (m_writes == eWrites::InPortions) {
        // What earlier portions have put into the file goes by the images of its rows.
        (void)Try(u"RevertStep", [this] { (void)Apply(m_open); });
    }
    m_open.Images.clear();
    m_open.Known.clear();
    m_parts.resize(parts);
}

// In portions, what was written so far is put into the file.
bool cJournal::KeepPortion()
{
    const bool isKept =
        m_depth == 0 || m_writes == eWrites::Whole || Try(u"EndStep", [this] { m_database.CommitGathered(); });
    m_timesPutBack += isKept ? 0 : 1;
    return isKept;
}

void cJournal::BeginPart()
{
    (void)KeepPortion(); // of a failure the user was told, and what was written before is no matter of the part
    m_parts.push_back({m_open.Images.size(), {}});
}

bool cJournal::EndPart()
{
    cPart part = std::move(m_parts.back());
    m_parts.pop_back();
    Join(std::move(part));
    return KeepPortion();
}

// The images of a part become those of what is around it, as far as that has none of the row yet.
void cJournal::Join(cPart part)
{
    std::set<cRowKey>& known = m_parts.empty() ? m_open.Known : m_parts.back().Known;
    if (known.empty()) {
        known = std::move(part.Known); // all images are those of the part
        return;
    }
    const auto isOlderKnown = [&known](const cImage& image) { return !known.insert(image.Key).second; };
    std::vector<cImage>& images = m_open.Images;
    const auto begin = images.begin() + static_cast<std::ptrdiff_t>(part.First);
    images.erase(std::remove_if(begin, images.end(), isOlderKnown), images.end());
}

void cJournal::RevertPart()
{
    if (m_writes == eWrites::InPortions) {
        m_database.DropGathered(); // of the part only: what was before it is in the file
    }
    cPart& part = m_parts.back();
    const auto begin = m_open.Images.begin() + static_cast<std::ptrdiff_t>(part.First);
    (void)Try(u"RevertStep", [&] { (void)Apply({{}, {begin, m_open.Images.end()}, {}}); });
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
    const bool isOutside = m_back == nullptr && m_depth == 0; // of all steps
    if (key.first != settings || !isOutside) {
        ++m_rowsWritten;
    }
    if (key.first == tables.size()) {
        return;
    }
    if (isOutside) {
        // What they know may not be true any more. Only choices of the view, and what a bank wants to hear again, are
        // stored all the time and are nobody's step.
        if (key.first != settings) {
            Forget();
        } else if (!row.IsThere) {
            ForgetRow(key);
        }
        return;
    }
    std::set<cRowKey>& known = m_back != nullptr ? m_back->Known : Known();
    const std::size_t before = known.size();
    known.insert(known.end(), key); // new rows mostly come in the order of their IDs
    if (known.size() == before) {
        return;
    }
    (m_back != nullptr ? *m_back : m_open).Images.push_back({key, row.IsThere ? row.Values() : cBoundList{}});
}

// A new setting has got the place of one that a step has removed or added. The step would write over it; it goes, with
// those that come behind it.
void cJournal::ForgetRow(const cRowKey& key)
{
    for (std::deque<cStep>* steps : {&m_undo, &m_redo}) {
        const auto newest =
            std::find_if(steps->rbegin(), steps->rend(), [&](const cStep& step) { return step.Known.contains(key); });
        steps->erase(steps->begin(), newest.base());
    }
}

// The number of a setting that came and went within the step is given to the next one, which would take the step away.
void cJournal::ForgetPassing(cStep& step)
{
    std::erase_if(step.Images, [&](const cImage& image) {
        const bool isPassing = image.Key.first == settings && image.Values.empty()
            && !cRows(m_database, "SELECT 1 FROM setting WHERE rowid = ?", {image.Key.second}).Next();
        if (isPassing) {
            step.Known.erase(image.Key);
        }
        return isPassing;
    });
}

QString cJournal::UndoName() const
{
    return m_undo.empty() ? QString() : m_undo.back().Name;
}

QString cJournal::RedoName() const
{
    return m_redo.empty() ? QString() : m_redo.back().Name;
}

void cJournal::Move(std::deque<cStep>& from, std::deque<cStep>& to)
{
    if (!from.empty()) {
        to.push_back(Apply(from.back()));
        from.pop_back();
    }
}

bool cJournal::Undo()
{
    return Try(u"Undo", [this] { Move(m_undo, m_redo); });
}

bool cJournal::Redo()
{
    return Try(u"Redo", [this] { Move(m_redo, m_undo); });
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
    ++m_timesPutBack;
    // All rows come back or none does. Within an open step they come with what it goes on to write.
    const bool isOfStep = m_database.IsGathering();
    if (!isOfStep) {
        m_database.Gather(eWrites::Whole);
    }
    m_back = &back;
    const auto done = qScopeGuard([&] {
        m_back = nullptr;
        if (!isOfStep) {
            m_database.EndGathering();
        }
    });
    WriteBack(step.Images);
    if (!isOfStep) {
        m_database.CommitGathered();
    }
    return back;
}

void cJournal::WriteBack(const std::vector<cImage>& images)
{
    TakeOut(m_database, images); // first: a setting that comes back may bear the name of one that goes
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
