#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <utility>

enum class eCharset;
struct cColumnMap;
struct cFileWish;
struct cTableChoice;

// What can be said about a table in words of one line, as options of a command have them.
namespace modTableOption {

// A charset as lists show it and as an option names it.
struct cCharset
{
    eCharset Charset;
    QString Shown;
    QString Name;
};
[[nodiscard]] const QList<cCharset>& Charsets();

[[nodiscard]] QStringList CharsetNames();
[[nodiscard]] QStringList ColumnNames();
[[nodiscard]] QStringList SignNames(); // as the file has it, then the other way round

// What is wrong with charset, profile, columns or sign of the wish, the first of them; empty when they can be used.
[[nodiscard]] QString Fault(const cFileWish& wish);

// What they choose; only for a wish without fault.
[[nodiscard]] cTableChoice Choice(const cFileWish& wish);

// "windows-1252"; empty for a charset without name.
[[nodiscard]] QString CharsetName(eCharset charset);

// The columns that there are, by name.
[[nodiscard]] QList<std::pair<QString, int>> Columns(const cColumnMap& map);

} // namespace modTableOption
