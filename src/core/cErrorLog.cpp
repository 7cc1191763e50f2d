#include "core/cErrorLog.h"

#include "base/cClock.h"
#include "base/cText.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <sys/file.h>

#include <algorithm>
#include <cerrno>

using namespace Qt::Literals::StringLiterals;

namespace {

// The first cell of a line says what the line is.
constexpr QChar begun = u'B';
constexpr QChar failed = u'F';
constexpr QChar crashed = u'X';
constexpr QChar ended = u'E';

constexpr QFileDevice::Permissions ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

bool IsKind(const QString& line, QChar kind)
{
    return line.startsWith(kind) && (line.size() == 1 || line.at(1) == u'\t');
}

QStringList LinesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)
                                          : QStringList();
}

QString Cell(QString text)
{
    return text.replace(u'\t', u' ').replace(u'\n', u' ');
}

QString LineOf(const cLogEntry& entry)
{
    return QStringList{QString(failed),       entry.Time.toString(Qt::ISODate),
                       Cell(entry.Program),   Cell(entry.Version),
                       Cell(entry.Operation), Cell(entry.Text)}
               .join(u'\t')
        + u'\n';
}

std::optional<cLogEntry> EntryOf(const QString& line)
{
    const QStringList cells = line.split(u'\t');
    const QDateTime time = QDateTime::fromString(cells.value(1), Qt::ISODate);
    if (!IsKind(line, failed) || cells.size() != 6 || !time.isValid()) {
        return std::nullopt;
    }
    return cLogEntry{time, cells[2], cells[3], cells[4], cells[5]};
}

// "ERROR: AddNewEntry": the name of a function, and nothing else is taken for one.
QString TakeOperation(QString& message)
{
    static const QRegularExpression head(u"^(?:ERROR|FEHLER): ([A-Za-z]{3,40})\\s*(?:\\n|$)"_s);
    const QRegularExpressionMatch match = head.match(message);
    if (match.hasMatch()) {
        message.remove(0, match.capturedLength());
    }
    return match.captured(1);
}

// Takes the file's lock, which its program holds for as long as it lives. Where that cannot be told it counts as alive.
bool IsGone(const QFile& file)
{
    return flock(file.handle(), LOCK_EX | LOCK_NB) == 0;
}

} // namespace

cErrorLog::cErrorLog(cRun run, const cClock& clock) : m_run(std::move(run)), m_clock(clock)
{
    // Without a lock nobody could tell an abandoned file from one in use, so it gets no mark.
    if (m_run.Kind == eKind::Window && Open() && IsGone(m_file)) {
        Write({QString(begun), m_clock.Now().toString(Qt::ISODate), m_run.Program, m_run.Version});
    }
}

cErrorLog::~cErrorLog()
{
    if (!m_file.isOpen()) {
        return;
    }
    if (m_count == 0) {
        m_file.remove();
    } else {
        Write({QString(ended), m_clock.Now().toString(Qt::ISODate)});
    }
}

// A file of its own for each run; the name makes the runs sort by time.
bool cErrorLog::Open()
{
    const QString start = m_run.Folder + u'/' + m_run.Program + u'-' + m_clock.Now().toString(u"yyyyMMdd-HHmmss"_s)
        + u'-' + QString::number(QCoreApplication::applicationPid());
    constexpr int tries = 10; // more than one run of a process is for tests
    for (int i = 0; i < tries && !m_file.isOpen(); ++i) {
        m_file.setFileName(start + u'-' + QString::number(i) + u".log"_s);
        (void)m_file.open(QIODevice::ReadWrite | QIODevice::NewOnly | QIODevice::Append, ownerOnly);
    }
    return m_file.isOpen();
}

void cErrorLog::Write(const QStringList& cells)
{
    m_file.write((cells.join(u'\t') + u'\n').toUtf8());
    m_file.flush();
}

void cErrorLog::Record(const QString& title, const QString& message)
{
    // The language may be another one than at the first failure.
    const QString language = cText::Tr("Abbrechen");
    if (!m_texts || language != m_language) {
        m_texts = cKnownTexts::OfProgram();
        m_language = language;
    }
    QString text = message;
    QString operation = TakeOperation(text);
    if (operation.isEmpty()) {
        const QString own = m_texts->IsTitle(title) ? title : QString();
        operation = m_operations.isEmpty() ? own : m_operations.constLast();
    }
    const bool isFirst = m_count++ == 0;
    if (!m_file.isOpen() && !Open()) {
        return;
    }
    const cLogEntry entry{m_clock.Now(), m_run.Program, m_run.Version, operation, m_texts->WithoutData(text)};
    m_file.write(LineOf(entry).toUtf8());
    m_file.flush();
    Shorten();
    if (isFirst) {
        Prune();
    }
    if (m_recorded) {
        m_recorded();
    }
}

// The newer half stays of a run that had too much to tell.
void cErrorLog::Shorten()
{
    if (m_file.size() <= MostBytes) {
        return;
    }
    QStringList lines = LinesOf(m_file.fileName());
    lines.remove(1, lines.size() / 2);
    m_file.resize(0);
    m_file.write((lines.join(u'\n') + u'\n').toUtf8());
    m_file.flush();
}

QStringList cErrorLog::FilesOf(const QString& program) const
{
    // A digit follows, because the name of one program begins with that of the other.
    QStringList names = QDir(m_run.Folder).entryList({program + u"-[0-9]*.log"_s}, QDir::Files, QDir::Name);
    for (QString& name : names) {
        name = m_run.Folder + u'/' + name;
    }
    return names;
}

void cErrorLog::Prune() const
{
    QStringList files = FilesOf(m_run.Program);
    files.removeIf([](const QString& path) {
        const QStringList lines = LinesOf(path);
        return std::none_of(lines.begin(), lines.end(), [](const QString& line) { return IsKind(line, failed); });
    });
    for (qsizetype i = 0; i + MostRuns < files.size(); ++i) {
        QFile file(files.at(i));
        if (file.open(QIODevice::ReadOnly) && IsGone(file)) {
            file.remove();
        }
    }
}

QStringList cErrorLog::Files() const
{
    return FilesOf(u"kontorelle"_s) + FilesOf(u"kontorelle-cli"_s);
}

qint64 cErrorLog::Size() const
{
    qint64 size = 0;
    for (const QString& path : Files()) {
        size += QFileInfo(path).size();
    }
    return size;
}

QList<cLogEntry> cErrorLog::Entries() const
{
    QList<cLogEntry> entries;
    for (const QString& path : Files()) {
        for (const QString& line : LinesOf(path)) {
            if (const std::optional<cLogEntry> entry = EntryOf(line)) {
                entries.prepend(*entry);
            }
        }
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [](const cLogEntry& a, const cLogEntry& b) { return a.Time > b.Time; });
    return entries;
}

std::optional<cErrorLog::cBroken> cErrorLog::TakeBroken()
{
    std::optional<cBroken> newest;
    for (const QString& path : FilesOf(m_run.Program)) {
        if (const std::optional<cBroken> broken = path == m_file.fileName() ? std::nullopt : Mend(path)) {
            newest = broken;
        }
    }
    Prune();
    return newest;
}

// Gives an abandoned file its end.
std::optional<cErrorLog::cBroken> cErrorLog::Mend(const QString& path) const
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Append | QIODevice::ExistingOnly) || !IsGone(file)) {
        return std::nullopt;
    }
    const QStringList lines = LinesOf(path);
    const auto has = [&](QChar kind) {
        return std::any_of(lines.begin(), lines.end(), [&](const QString& line) { return IsKind(line, kind); });
    };
    if (has(ended) || !has(begun)) {
        return std::nullopt;
    }
    cBroken broken{QFileInfo(path).lastModified(), has(crashed), 0};
    broken.Failures = static_cast<int>(
        std::count_if(lines.begin(), lines.end(), [](const QString& line) { return IsKind(line, failed); }));
    const QString text = broken.IsCrash ? cText::Tr("Kontorelle ist abgestürzt.")
                                        : cText::Tr("Kontorelle wurde nicht ordentlich beendet.");
    const QString version = lines.constFirst().section(u'\t', 3, 3);
    file.write(LineOf({broken.Last, m_run.Program, version, {}, text}).toUtf8());
    file.write((QString(ended) + u'\n').toUtf8());
    return broken;
}
