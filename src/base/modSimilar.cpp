#include "base/modSimilar.h"

#include <algorithm>
#include <array>
#include <bit>
#include <vector>

namespace {

using cNumbers = std::vector<quint16>;

// The characters of two texts as small numbers: upper-cased, one number per letter. Letters of Western European texts
// have their place in a table; each other one gets the next free number when it is first met, so that it equals itself
// and nothing else. Upper-casing never changes the length of a text: "ß" stays what it is.
class cAlphabet
{
public:
    void Start() { m_others.clear(); }

    void Read(QStringView text, cNumbers& numbers)
    {
        numbers.resize(static_cast<size_t>(text.size()));
        std::transform(text.begin(), text.end(), numbers.begin(), [this](QChar c) { return NumberOf(c); });
    }

    [[nodiscard]] size_t Size() const { return fixed + m_others.size(); }

private:
    static constexpr char16_t fixed = 256; // numbers of the table
    using cTable = std::array<char16_t, fixed>;

    [[nodiscard]] static cTable UpperCases()
    {
        cTable upper{};
        for (char16_t c = 0; c < fixed; ++c) {
            upper[c] = QChar(c).toUpper().unicode();
        }
        return upper;
    }

    [[nodiscard]] quint16 NumberOf(QChar c)
    {
        static const cTable table = UpperCases();
        const char16_t upper = c.unicode() < fixed ? table[c.unicode()] : c.toUpper().unicode();
        return upper < fixed ? upper : Other(upper);
    }

    [[nodiscard]] quint16 Other(char16_t upper)
    {
        const auto found = std::find(m_others.begin(), m_others.end(), upper);
        const auto number = fixed + (found - m_others.begin());
        if (found == m_others.end()) {
            m_others.push_back(upper);
        }
        return static_cast<quint16>(number);
    }

    std::vector<char16_t> m_others;
};

// A part of each text: the first place and the one behind the last.
struct cRange
{
    size_t FirstA = 0;
    size_t EndA = 0;
    size_t FirstB = 0;
    size_t EndB = 0;

    [[nodiscard]] bool IsEmpty() const { return FirstA >= EndA || FirstB >= EndB; }
};

// The longest run of equal characters in a range; the first one in a, then in b, where several are as long.
struct cRun
{
    size_t InA = 0;
    size_t InB = 0;
    size_t Length = 0;
};

constexpr size_t wordBits = 64;

size_t WordsFor(size_t bits)
{
    return (bits + wordBits - 1) / wordBits;
}

// Two words behind each other, moved down by `count` below 64; the lower word of what comes out.
quint64 Joined(quint64 low, quint64 high, size_t count)
{
    return (low >> count) | ((high << 1) << (wordBits - 1 - count));
}

// Where each letter stands in text b, as a row of bits.
class cPlaces
{
public:
    void Note(const cNumbers& b, size_t alphabet)
    {
        m_stride = WordsFor(b.size()) + 1; // one more, because reading at an offset takes two words
        m_bits.resize(std::max(m_bits.size(), alphabet * m_stride));
        for (size_t i = 0; i < b.size(); ++i) {
            m_bits[b[i] * m_stride + i / wordBits] |= quint64{1} << (i % wordBits);
        }
    }

    // Only what was set: the next pair finds the rows empty.
    void Forget(const cNumbers& b)
    {
        for (size_t i = 0; i < b.size(); ++i) {
            m_bits[b[i] * m_stride + i / wordBits] = 0;
        }
    }

    [[nodiscard]] const quint64* Bits() const { return m_bits.data(); }
    [[nodiscard]] size_t Stride() const { return m_stride; } // words per letter

private:
    size_t m_stride = 0;
    std::vector<quint64> m_bits;
};

// The part of the rows that lies in a range of b, moved down to bit 0.
template <size_t words>
class cWindow
{
public:
    using cBits = std::array<quint64, words>;

    cWindow(const cPlaces& places, size_t first, size_t end)
        : m_from(places.Bits() + first / wordBits),
          m_stride(places.Stride()),
          m_shift(first % wordBits)
    {
        for (size_t i = 0, left = end - first; left > 0; ++i) {
            m_mask[i] = left < wordBits ? (quint64{1} << left) - 1 : ~quint64{0};
            left -= std::min(left, wordBits);
            m_used = i + 1;
        }
    }

    [[nodiscard]] cBits Row(quint16 letter) const
    {
        const quint64* from = m_from + letter * m_stride;
        if constexpr (words == 1) {
            return {Joined(from[0], from[1], m_shift) & m_mask[0]};
        } else {
            cBits row{};
            for (size_t i = 0; i < m_used; ++i) {
                row[i] = Joined(from[i], from[i + 1], m_shift) & m_mask[i];
            }
            return row;
        }
    }

private:
    const quint64* m_from;
    size_t m_stride;
    size_t m_shift;
    size_t m_used = 0;
    cBits m_mask{};
};

// Finds the longest run of a range whose part of b fits into `words` words. The places where runs of one length start
// are known for all of b at once, and from them those of the runs that are one longer.
template <size_t words>
class cRunFinder
{
public:
    [[nodiscard]] cRun Find(const cNumbers& a, const cPlaces& places, const cRange& range)
    {
        size_t count =
            Begin(a.data() + range.FirstA, range.EndA - range.FirstA, cWindow<words>(places, range.FirstB, range.EndB));
        cRun run;
        while (count > 0) {
            ++run.Length;
            run.InA = range.FirstA + m_open[0];
            run.InB = range.FirstB + LowestBit(m_starts[m_open[0]]);
            count = Lengthen(range.EndA - range.FirstA, run.Length, count);
        }
        return run;
    }

private:
    using cBits = std::array<quint64, words>;

    // The runs of one character, without those in the middle of a longer run; their number.
    [[nodiscard]] size_t Begin(const quint16* a, size_t length, const cWindow<words> window)
    {
        if (m_open.size() < length) {
            m_places.resize(length);
            m_starts.resize(length);
            m_open.resize(length);
        }
        cBits* places = m_places.data();
        cBits* starts = m_starts.data();
        quint32* open = m_open.data();
        cBits before{};
        size_t count = 0;
        for (size_t i = 0; i < length; ++i) {
            const cBits row = window.Row(a[i]);
            const cBits begin = WithoutFollowers(row, before);
            before = row;
            places[i] = row;
            starts[i] = begin;
            open[count] = static_cast<quint32>(i);
            count += IsAny(begin) ? size_t{1} : 0;
        }
        return count;
    }

    // From the `count` places with runs of `length` to those where they go on for one character more; their number.
    [[nodiscard]] size_t Lengthen(size_t lengthA, size_t length, size_t count)
    {
        const cBits* places = m_places.data() + length;
        cBits* starts = m_starts.data();
        quint32* open = m_open.data();
        size_t left = 0;
        for (size_t n = 0; n < count && open[n] + length < lengthA; ++n) {
            const quint32 i = open[n];
            const cBits bits = Common(starts[i], MovedDown(places[i], length));
            starts[i] = bits;
            open[left] = i;
            left += IsAny(bits) ? size_t{1} : 0;
        }
        return left;
    }

    // Without the places that continue a run from the character before: that run is the longer one.
    [[nodiscard]] static cBits WithoutFollowers(cBits bits, const cBits& before)
    {
        quint64 carry = 0;
        for (size_t i = 0; i < words; ++i) {
            bits[i] &= ~((before[i] << 1) | carry);
            carry = before[i] >> (wordBits - 1);
        }
        return bits;
    }

    [[nodiscard]] static bool IsAny(const cBits& bits)
    {
        quint64 any = 0;
        for (const quint64 word : bits) {
            any |= word;
        }
        return any != 0;
    }

    [[nodiscard]] static cBits Common(cBits bits, const cBits& others)
    {
        for (size_t i = 0; i < words; ++i) {
            bits[i] &= others[i];
        }
        return bits;
    }

    [[nodiscard]] static cBits MovedDown(const cBits& bits, size_t count)
    {
        if constexpr (words == 1) {
            return {count < wordBits ? bits[0] >> count : 0};
        } else {
            cBits moved{};
            const size_t whole = count / wordBits;
            for (size_t i = 0; i + whole < words; ++i) {
                const quint64 above = i + whole + 1 < words ? bits[i + whole + 1] : 0;
                moved[i] = Joined(bits[i + whole], above, count % wordBits);
            }
            return moved;
        }
    }

    [[nodiscard]] static size_t LowestBit(const cBits& bits)
    {
        size_t word = 0;
        while (bits[word] == 0) {
            ++word;
        }
        return word * wordBits + static_cast<size_t>(std::countr_zero(bits[word]));
    }

    std::vector<cBits> m_places; // of each character of a, in the range of b
    std::vector<cBits> m_starts; // of the runs of the present length that start at each character of a
    std::vector<quint32> m_open; // the characters of a where such runs start, in front of the list
};

// Counts the matching characters of two texts.
class cCounter
{
public:
    [[nodiscard]] size_t Count(QStringView a, QStringView b)
    {
        m_alphabet.Start();
        m_alphabet.Read(a, m_a);
        m_alphabet.Read(b, m_b);
        if (m_a == m_b) {
            return m_a.size();
        }
        m_places.Note(m_b, m_alphabet.Size());
        const size_t matches = CountIn({0, m_a.size(), 0, m_b.size()});
        m_places.Forget(m_b);
        return matches;
    }

private:
    [[nodiscard]] size_t CountIn(cRange range)
    {
        size_t matches = 0;
        while (!range.IsEmpty()) {
            const cRun run = Longest(range);
            if (run.Length == 0) {
                break;
            }
            matches += run.Length + CountIn({range.FirstA, run.InA, range.FirstB, run.InB});
            range.FirstA = run.InA + run.Length;
            range.FirstB = run.InB + run.Length;
        }
        return matches;
    }

    [[nodiscard]] cRun Longest(const cRange& range)
    {
        const size_t words = WordsFor(range.EndB - range.FirstB);
        if (words == 1) {
            return m_one.Find(m_a, m_places, range);
        }
        if (words == 2) {
            return m_two.Find(m_a, m_places, range);
        }
        return words <= 8 ? m_eight.Find(m_a, m_places, range) : LongestByCharacters(range);
    }

    // For texts of any length, row by row: how long the run is that ends at each character of b.
    [[nodiscard]] cRun LongestByCharacters(const cRange& range)
    {
        cRun run;
        m_ends.assign(range.EndB - range.FirstB + 1, 0);
        for (size_t a = range.FirstA; a < range.EndA; ++a) {
            for (size_t b = range.EndB; b > range.FirstB; --b) {
                size_t& ends = m_ends[b - range.FirstB];
                ends = m_a[a] == m_b[b - 1] ? m_ends[b - 1 - range.FirstB] + 1 : 0;
                // Going down in b, the last run of the same length and start in a is the first one in b.
                const bool isSameStart = ends == run.Length && a + 1 == run.InA + ends;
                if (ends > run.Length || (ends > 0 && isSameStart)) {
                    run = {a + 1 - ends, b - ends, ends};
                }
            }
        }
        return run;
    }

    cAlphabet m_alphabet;
    cNumbers m_a;
    cNumbers m_b;
    cPlaces m_places;
    cRunFinder<1> m_one;
    cRunFinder<2> m_two;
    cRunFinder<8> m_eight;
    std::vector<size_t> m_ends;
};

} // namespace

double modSimilar::Similarity(QStringView a, QStringView b)
{
    const qsizetype both = a.size() + b.size();
    const qsizetype difference = qAbs(a.size() - b.size());
    if (both < 4 * difference) {
        return 0.0;
    }
    if (a.isEmpty() && b.isEmpty()) {
        return 1.0;
    }
    if (a.isEmpty() || b.isEmpty()) {
        return 0.0;
    }
    static cCounter counter; // its buffers are used again and again, which makes this no function for several threads
    return 2.0 * static_cast<double>(counter.Count(a, b)) / static_cast<double>(both);
}
