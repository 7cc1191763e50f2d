#include "import/table/modTableHeader.h"

#include "import/cell/modTableValue.h"
#include "import/table/modColumnWords.h"
#include "import/table/modTableProfile.h"
#include "import/table/modTableText.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

using modTableHeader::cFound;
using modTableHeader::cProbe;

constexpr int rowsWithoutDay = 5; // that may stand below a header before the first one with a day

bool IsEmpty(const cProbe& probe)
{
    const auto isBlank = [](const auto& text) {
        return std::all_of(text.begin(), text.end(),
                           [](QChar c) { return c.isSpace() || c == u';' || c == u',' || c == u'"'; });
    };
    return probe.Cells.isEmpty() ? isBlank(probe.Line) : std::all_of(probe.Cells.begin(), probe.Cells.end(), isBlank);
}

class cSearch
{
public:
    cSearch(const QList<cProbe>& probes, const cTableChoice& choice, const cTableMemory* memory)
        : m_probes(probes),
          m_choice(choice),
          m_memory(memory)
    {
    }

    [[nodiscard]] cFound Run() const
    {
        if (m_choice.HeaderLine) {
            return Chosen(*m_choice.HeaderLine - 1);
        }
        int header = FirstHeader([this](int place) { return IsKnown(place); });
        if (header < 0) {
            header = FirstHeader([this](int place) { return IsTold(place); });
        }
        if (header >= 0) {
            return At(header);
        }
        if (const std::optional<cFound> found = AboveData()) {
            return *found;
        }
        header = FirstHeader([this](int place) { return IsAlone(place); });
        return header >= 0 ? At(header) : Nothing();
    }

private:
    [[nodiscard]] QChar SeparatorOf(int place) const
    {
        return m_choice.Separator.value_or(modTableText::SeparatorOf(m_probes.at(place).Line));
    }

    [[nodiscard]] QStringList Cells(int place) const
    {
        return modTableHeader::CellsOf(m_probes.at(place), SeparatorOf(place));
    }

    [[nodiscard]] cFound At(int header) const { return {header, header + 1, SeparatorOf(header)}; }

    [[nodiscard]] cFound Chosen(int header) const
    {
        if (header >= 0 && header < m_probes.size()) {
            return At(header);
        }
        cFound found = AboveData().value_or(Nothing());
        found.Header = -1;
        return found;
    }

    // The first of the lines that the test accepts; -1 when there is none.
    [[nodiscard]] int FirstHeader(auto isHeader) const
    {
        const int end = qMin(static_cast<int>(m_probes.size()), modTableHeader::searchedLines);
        for (int place = 0; place < end; ++place) {
            if (!IsEmpty(m_probes.at(place)) && isHeader(place)) {
                return place;
            }
        }
        return -1;
    }

    [[nodiscard]] bool IsKnown(int place) const
    {
        const QStringList cells = Cells(place);
        cTableLayout layout;
        return cells.size() >= 3
            && ((m_memory != nullptr && m_memory->HasMap(cTableMemory::KeyOf(cells)))
                || (m_choice.Profile != noProfile && modTableProfile::Apply(cells, layout)));
    }

    [[nodiscard]] bool IsTold(int place) const
    {
        return NamesColumns(Cells(place)) && HasDateBelow(place, SeparatorOf(place));
    }

    // Without a row below: a line that says so may follow.
    [[nodiscard]] bool IsAlone(int place) const
    {
        const auto isRow = [separator = SeparatorOf(place)](const cProbe& probe) {
            const QStringList cells = modTableHeader::CellsOf(probe, separator);
            return cells.size() - cells.count(QString()) > 1;
        };
        return NamesColumns(Cells(place)) && std::none_of(m_probes.begin() + place + 1, m_probes.end(), isRow);
    }

    [[nodiscard]] static bool NamesColumns(const QStringList& cells)
    {
        if (cells.size() < 3) {
            return false;
        }
        const cColumnMap map = modColumnWords::Detect(cells);
        return map.Date >= 0 && (map.Amount >= 0 || map.Debit >= 0 || map.Credit >= 0);
    }

    // The first rows may be pending or a balance and have no day.
    [[nodiscard]] bool HasDateBelow(int place, QChar separator) const
    {
        int rows = 0;
        for (int next = place + 1; next < m_probes.size() && rows < rowsWithoutDay; ++next) {
            if (IsEmpty(m_probes.at(next))) {
                continue;
            }
            const QStringList cells = modTableHeader::CellsOf(m_probes.at(next), separator);
            if (std::any_of(cells.begin(), cells.end(), modTableValue::IsDate)) {
                return true;
            }
            if (NamesColumns(cells)) {
                return false; // that is the one
            }
            ++rows;
        }
        return false;
    }

    [[nodiscard]] static bool IsData(const QStringList& cells, bool withWholes)
    {
        const auto isAmount = [&](const QString& cell) {
            return modTableValue::IsAmount(cell)
                || (withWholes && !modTableValue::IsDate(cell)
                    && modTableValue::ReadCents(cell, eNumberFormat::Detect).has_value());
        };
        return cells.size() >= 3 && std::any_of(cells.begin(), cells.end(), modTableValue::IsDate)
            && std::any_of(cells.begin(), cells.end(), isAmount);
    }

    // The separator with which the line is a row of data; null when there is none.
    [[nodiscard]] QChar DataSeparator(int place, bool withWholes) const
    {
        const auto isData = [&](QChar separator) {
            return IsData(modTableHeader::CellsOf(m_probes.at(place), separator), withWholes);
        };
        if (m_choice.Separator) {
            return isData(*m_choice.Separator) ? *m_choice.Separator : QChar();
        }
        constexpr std::array separators{u';', u'\t', u',', u'|'};
        const auto* const found = std::find_if(separators.begin(), separators.end(), isData);
        return found == separators.end() ? QChar() : QChar(*found);
    }

    [[nodiscard]] std::optional<cFound> AboveData() const
    {
        for (const bool withWholes : {false, true}) { // "12" counts only where nothing has decimals
            for (int place = 0; place < m_probes.size(); ++place) {
                const QChar separator = DataSeparator(place, withWholes);
                if (!separator.isNull()) {
                    return cFound{HeaderAbove(place, separator), place, separator};
                }
            }
        }
        return std::nullopt;
    }

    [[nodiscard]] cFound Nothing() const { return {-1, 0, m_probes.isEmpty() ? QChar(u';') : SeparatorOf(0)}; }

    // The next line above that is not empty, when it has names without a digit.
    [[nodiscard]] int HeaderAbove(int place, QChar separator) const
    {
        int above = place - 1;
        while (above >= 0 && IsEmpty(m_probes.at(above))) {
            --above;
        }
        if (above < 0) {
            return -1;
        }
        const QStringList cells = modTableHeader::CellsOf(m_probes.at(above), separator);
        return cells.size() >= 3 && std::all_of(cells.begin(), cells.end(), IsName) ? above : -1;
    }

    // Without digits, but for the number of one of several columns of a kind ("Description 1").
    [[nodiscard]] static bool IsName(const QString& cell)
    {
        constexpr qsizetype longestNumber = 2;
        const auto isDigit = [](QChar c) { return c.isDigit(); };
        const auto digits = std::count_if(cell.begin(), cell.end(), isDigit);
        return digits == 0
            || (digits <= longestNumber && cell.front().isLetter()
                && std::all_of(cell.end() - digits, cell.end(), isDigit));
    }

    const QList<cProbe>& m_probes;
    const cTableChoice& m_choice;
    const cTableMemory* m_memory;
};

} // namespace

QStringList modTableHeader::CellsOf(const cProbe& probe, QChar separator)
{
    if (!probe.Cells.isEmpty()) {
        return probe.Cells;
    }
    const cTable table = modTableText::Split(probe.Line.toString(), separator, 0);
    return table.RowCount() == 0 ? QStringList() : table.Row(0);
}

modTableHeader::cFound modTableHeader::Find(const QList<cProbe>& probes, const cTableChoice& choice,
                                            const cTableMemory* memory)
{
    return cSearch(probes, choice, memory).Run();
}
