#include "import/sheet/modXls.h"

#include "base/cText.h"
#include "import/read/modStatementText.h"
#include "import/sheet/cXlsText.h"
#include "import/sheet/modContainer.h"
#include "import/sheet/modSheetValue.h"

#include <QHash>
#include <QtEndian>

#include <algorithm>
#include <bit>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype largestFile = qsizetype{64} * 1024 * 1024; // bytes; 65,536 rows of a statement stay far below
constexpr qsizetype mostSheets = 100;
constexpr int biff8 = 0x0600;

// Records by their numbers.
enum eRecord {
    Formula = 0x0006,
    End = 0x000A,
    Epoch = 0x0022,
    Password = 0x002F,
    Continue = 0x003C,
    Bound = 0x0085,
    Packed = 0x00BD, // several numbers
    RichLabel = 0x00D6,
    Style = 0x00E0,
    SharedTexts = 0x00FC,
    SharedLabel = 0x00FD,
    Number = 0x0203,
    Label = 0x0204,
    Boolean = 0x0205,
    FormulaText = 0x0207,
    PackedOne = 0x027E,
    Format = 0x041E,
    Begin = 0x0809,
};

cSpreadsheet Refused(const QString& reason)
{
    return {{}, reason};
}

cSpreadsheet Damaged()
{
    return Refused(cText::Tr("Die Datei ist beschädigt oder keine Arbeitsmappe. Es wurde nichts übernommen."));
}

cSpreadsheet Protected()
{
    return Refused(
        cText::Tr("Die Arbeitsmappe ist mit einem Kennwort geschützt. Bitte speichern Sie sie ohne Kennwort und "
                  "lesen Sie sie noch einmal ein."));
}

cSpreadsheet TooLarge()
{
    return Refused(cText::Tr("Die Arbeitsmappe ist zu groß für einen Kontoauszug."));
}

template <typename tValue>
tValue At(QByteArrayView bytes, qsizetype place)
{
    return place + qsizetype{sizeof(tValue)} <= bytes.size() ? qFromLittleEndian<tValue>(bytes.data() + place)
                                                             : tValue{};
}

QByteArrayView Behind(QByteArrayView bytes, qsizetype count)
{
    return bytes.sliced(qMin(count, bytes.size()));
}

// Two bits say how the other thirty are meant: the upper ones of a fraction or a whole number, hundredths or not.
double Unpacked(quint32 packed)
{
    const double value =
        (packed & 2U) != 0 ? static_cast<qint32>(packed) >> 2 : std::bit_cast<double>(quint64{packed & ~3U} << 32);
    return (packed & 1U) != 0 ? value / 100 : value;
}

// Walks over the records of the workbook.
class cRecords
{
public:
    cRecords(QByteArrayView stream, qsizetype at) : m_stream(stream), m_at(at) {}

    // False at the end and when the next record does not fit in.
    bool Next()
    {
        if (m_at < 0 || m_at + 4 > m_stream.size()) {
            return false;
        }
        Type = At<quint16>(m_stream, m_at);
        const qsizetype size = At<quint16>(m_stream, m_at + 2);
        if (m_at + 4 + size > m_stream.size()) {
            return false;
        }
        Body = m_stream.sliced(m_at + 4, size);
        m_at += 4 + size;
        return true;
    }

    // The record with those that continue it.
    QList<QByteArrayView> WithContinued()
    {
        QList<QByteArrayView> parts{Body};
        while (At<quint16>(m_stream, m_at) == Continue && Next()) {
            parts.append(Body);
        }
        return parts;
    }

    int Type = 0;
    QByteArrayView Body;

private:
    QByteArrayView m_stream;
    qsizetype m_at;
};

struct cPlacedCell
{
    int Row;
    int Column;
    cSheetCell Cell;
};

class cXlsReader
{
public:
    explicit cXlsReader(QByteArrayView stream) : m_stream(stream) {}

    cSpreadsheet Read()
    {
        cRecords records(m_stream, 0);
        if (!records.Next() || records.Type != Begin) {
            return Damaged();
        }
        m_isWide = At<quint16>(records.Body, 0) == biff8;
        if (At<quint16>(records.Body, 2) == 0x0010) { // a sheet alone
            ReadSheet({}, 0);
        } else if (ReadGlobals(records)) {
            ReadSheets();
        }
        const bool isRead = !m_isDamaged && !m_book.Sheets.isEmpty();
        return m_isProtected ? Protected() : (m_isTooLarge ? TooLarge() : (isRead ? m_book : Damaged()));
    }

private:
    struct cBound
    {
        QString Name;
        qsizetype Place;
    };

    [[nodiscard]] QString TextOf(QByteArrayView bytes, int lengthSize) const
    {
        if (m_isWide) {
            return cXlsText({bytes}).Read(lengthSize).value_or(QString());
        }
        const qsizetype length = lengthSize == 1 ? At<quint8>(bytes, 0) : At<quint16>(bytes, 0);
        return modStatementText::Decode(Behind(bytes, lengthSize).toByteArray().left(length));
    }

    // False when the part about the whole workbook has no end or there is no reading of it.
    bool ReadGlobals(cRecords& records)
    {
        while (records.Next()) {
            if (records.Type == Password) {
                m_isProtected = true;
                return false;
            }
            if (records.Type == End) {
                return true;
            }
            if (records.Type == SharedTexts) {
                ReadSharedTexts(records.WithContinued());
            } else {
                TakeGlobal(records.Type, records.Body);
            }
        }
        m_isDamaged = true;
        return false;
    }

    void TakeGlobal(int type, QByteArrayView body)
    {
        if (type == Epoch) {
            m_epoch = At<quint16>(body, 0) == 1 ? eSheetEpoch::Year1904 : eSheetEpoch::Year1900;
        } else if (type == Format) {
            const QString code = TextOf(Behind(body, 2), m_isWide ? 2 : 1);
            m_ownFormats.insert(At<quint16>(body, 0), modSheetValue::FormatOf(code));
        } else if (type == Style) {
            const int id = At<quint16>(body, 2);
            m_styles.append(m_ownFormats.value(id, modSheetValue::FormatOf(id))); // formats stand before styles
        } else if (type == Bound && body.size() > 6 && body.at(5) == 0) {         // a sheet, no chart
            m_bounds.append({TextOf(body.sliced(6), 1), At<quint32>(body, 0)});
        }
    }

    void ReadSharedTexts(const QList<QByteArrayView>& parts)
    {
        cXlsText reader(parts);
        reader.Skip(4); // how often they are used
        const quint32 count = reader.Number(4);
        for (quint32 i = 0; i < count && !reader.IsAtEnd(); ++i) {
            const std::optional<QString> text = reader.Read();
            if (!text) {
                m_isDamaged = true;
                return;
            }
            m_texts.append(*text);
        }
    }

    void ReadSheets()
    {
        for (const cBound& bound : m_bounds) {
            if (m_book.Sheets.size() < mostSheets && !m_isDamaged && !m_isTooLarge) {
                ReadSheet(bound.Name, bound.Place);
            }
        }
    }

    void ReadSheet(const QString& name, qsizetype place)
    {
        cRecords records(m_stream, place);
        m_cells.clear();
        int depth = 0; // charts inside of the sheet have a beginning and an end of their own
        do {
            if (!records.Next() || (depth == 0 && records.Type != Begin)) {
                m_isDamaged = true;
                return;
            }
            depth += records.Type == Begin ? 1 : (records.Type == End ? -1 : 0);
            if (depth == 1) {
                TakeCell(records.Type, records.Body);
            }
            m_isProtected = m_isProtected || records.Type == Password;
            m_isTooLarge = m_cells.size() > cSheetBuilder::mostCells;
        } while (depth > 0 && !m_isTooLarge);
        AddSheet(name);
    }

    // The cells of a row need not stand one after another in the file.
    void AddSheet(const QString& name)
    {
        std::stable_sort(m_cells.begin(), m_cells.end(), [](const cPlacedCell& a, const cPlacedCell& b) {
            return a.Row != b.Row ? a.Row < b.Row : a.Column < b.Column;
        });
        cSheetBuilder builder(name);
        int row = -1;
        for (const cPlacedCell& cell : m_cells) {
            if (cell.Row != row) {
                row = cell.Row;
                builder.BeginRow(row + 1);
            }
            builder.Put(cell.Column, cell.Cell);
        }
        m_isTooLarge = m_isTooLarge || builder.IsFull();
        m_book.Sheets.append(builder.Take());
    }

    void TakeCell(int type, QByteArrayView body)
    {
        const QByteArrayView content = Behind(body, 6); // behind row, column and style
        switch (type) {
        case Number: AddNumber(body, At<double>(content, 0)); break;
        case PackedOne: AddNumber(body, Unpacked(At<quint32>(content, 0))); break;
        case Packed: AddPacked(body); break;
        case SharedLabel: AddText(body, m_texts.value(static_cast<qsizetype>(At<quint32>(content, 0)))); break;
        case Label:
        case RichLabel: AddText(body, TextOf(content, 2)); break;
        case Boolean: AddBoolean(body, At<quint8>(content, 0), At<quint8>(content, 1) != 0); break;
        case Formula: AddFormula(body, content); break;
        case FormulaText: AddText(m_formula, TextOf(body, 2)); break;
        default: break;
        }
    }

    void Add(QByteArrayView place, const cSheetCell& cell)
    {
        if (!cell.Text.isEmpty() && place.size() >= 6) {
            m_cells.append({At<quint16>(place, 0), At<quint16>(place, 2), cell});
        }
    }

    void AddNumber(QByteArrayView place, double value)
    {
        Add(place, modSheetValue::Value(value, m_styles.value(At<quint16>(place, 4)), m_epoch));
    }

    void AddText(QByteArrayView place, QString text)
    {
        Add(place, {text.remove(QChar::Null).replace(u'\n', u' '), eSheetCell::Text});
    }

    void AddBoolean(QByteArrayView place, int value, bool isError)
    {
        Add(place, isError ? cSheetCell{u"#"_s, eSheetCell::Text} : modSheetValue::Boolean(value != 0));
    }

    void AddPacked(QByteArrayView body)
    {
        const int first = At<quint16>(body, 2);
        for (qsizetype i = 0; 4 + (i + 1) * 6 <= body.size() - 2; ++i) {
            const eSheetFormat format = m_styles.value(At<quint16>(body, 4 + i * 6));
            const double value = Unpacked(At<quint32>(body, 6 + i * 6));
            m_cells.append(
                {At<quint16>(body, 0), first + static_cast<int>(i), modSheetValue::Value(value, format, m_epoch)});
        }
    }

    // A formula carries its result; that it is a text comes in a record of its own.
    void AddFormula(QByteArrayView body, QByteArrayView result)
    {
        m_formula = body;
        if (At<quint16>(result, 6) != 0xFFFF) {
            AddNumber(body, At<double>(result, 0));
            return;
        }
        const int kind = At<quint8>(result, 0);
        if (kind == 1 || kind == 2) {
            AddBoolean(body, At<quint8>(result, 2), kind == 2);
        }
    }

    QByteArrayView m_stream;
    bool m_isWide = true; // texts tell how wide their letters are
    bool m_isDamaged = false;
    bool m_isProtected = false;
    bool m_isTooLarge = false;
    eSheetEpoch m_epoch = eSheetEpoch::Year1900;
    QHash<int, eSheetFormat> m_ownFormats;
    QList<eSheetFormat> m_styles;
    QStringList m_texts;
    QList<cBound> m_bounds;
    QList<cPlacedCell> m_cells; // of the sheet that is being read
    QByteArrayView m_formula;   // the last one, which a text may follow
    cSpreadsheet m_book;
};

} // namespace

bool modXls::IsXls(const QByteArray& bytes)
{
    return modContainer::IsContainer(bytes) || bytes.startsWith("\x09\x08\x08") || bytes.startsWith("\x09\x08\x10");
}

bool modXls::HoldsWorkbook(const QByteArray& bytes)
{
    return modContainer::Read(bytes, u"Workbook") || modContainer::Read(bytes, u"Book")
        || modContainer::Read(bytes, u"EncryptedPackage");
}

cSpreadsheet modXls::Read(const QByteArray& bytes)
{
    if (bytes.size() > largestFile) {
        return TooLarge();
    }
    if (!modContainer::IsContainer(bytes)) {
        return cXlsReader(bytes).Read();
    }
    if (modContainer::Read(bytes, u"EncryptedPackage")) {
        return Protected(); // an XLSX file with a password
    }
    std::optional<QByteArray> stream = modContainer::Read(bytes, u"Workbook");
    if (!stream) {
        stream = modContainer::Read(bytes, u"Book");
    }
    return stream ? cXlsReader(*stream).Read() : Damaged();
}
