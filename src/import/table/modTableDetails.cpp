#include "import/table/modTableDetails.h"

#include "base/modChar.h"
#include "import/cell/modTableValue.h"
#include "model/cImportEntry.h"

#include <algorithm>
#include <array>

namespace {

struct cLabel
{
    const char16_t* Text;
    QString cImportEntry::*Field;
};

constexpr std::array labels = {
    cLabel{u"Auftraggeber:", &cImportEntry::ImportBeneficiary},
    cLabel{u"Empfänger:", &cImportEntry::ImportBeneficiary},
    cLabel{u"Zahlungspflichtiger:", &cImportEntry::ImportBeneficiary},
    cLabel{u"Kto/IBAN:", &cImportEntry::ImportBeneficiaryAccount},
    cLabel{u"BLZ/BIC:", &cImportEntry::ImportBeneficiaryBLZ},
    cLabel{u"Buchungstext:", &cImportEntry::ImportPurpose},
    cLabel{u" Ref. ", nullptr}, // the bank's reference; it alone tells equal payments of one day apart
};

struct cHit
{
    qsizetype Place;
    const cLabel* Label;
};

// The next label at or behind a place.
cHit NextLabel(const QString& text, qsizetype from)
{
    cHit next{text.size(), nullptr};
    for (const cLabel& label : labels) {
        const qsizetype place = text.indexOf(QStringView(label.Text), from);
        if (place >= 0 && place < next.Place) {
            next = {place, &label};
        }
    }
    return next;
}

// "Auftraggeber: NAME Kto/IBAN: ... BLZ/BIC: ... Buchungstext: PURPOSE Ref. ..."
void ApplyLabelled(cImportEntry& entry)
{
    const QString text = entry.ImportPurpose;
    cHit hit = NextLabel(text, 0);
    if (hit.Label == nullptr) {
        return;
    }
    entry.ImportPurpose = text.left(hit.Place);
    QStringView reference;
    while (hit.Label != nullptr) {
        const qsizetype start = hit.Place + QStringView(hit.Label->Text).size();
        const cHit next = NextLabel(text, start);
        const QStringView value = QStringView(text).mid(start, next.Place - start).trimmed();
        if (hit.Label->Field == nullptr) {
            reference = value;
        } else {
            entry.*(hit.Label->Field) = value.toString();
        }
        hit = next;
    }
    if (!reference.isEmpty()) {
        entry.ImportPurpose += QStringLiteral(" Ref. ") + reference;
    }
    entry.ImportPurpose = entry.ImportPurpose.trimmed();
}

constexpr qsizetype markSize = 12; // two capitals, "/", nine digits

// Where the mark begins; -1 when there is none.
qsizetype MarkIn(QStringView text)
{
    for (qsizetype slash = text.indexOf(u'/'); slash >= 0; slash = text.indexOf(u'/', slash + 1)) {
        const qsizetype start = slash - 2;
        if (start < 0 || start + markSize > text.size() || !modChar::IsCapital(text[start])
            || !modChar::IsCapital(text[start + 1])) {
            continue;
        }
        const QStringView digits = text.mid(slash + 1, 9);
        if (modChar::AreDigits(digits)) {
            return start;
        }
    }
    return -1;
}

// The first word, which is then taken off the text.
QStringView TakeWord(QStringView& text)
{
    const qsizetype blank = text.indexOf(u' ');
    const QStringView word = blank < 0 ? text : text.left(blank);
    text = blank < 0 ? QStringView() : text.mid(blank).trimmed();
    return word;
}

bool IsBankCode(QStringView word)
{
    const bool isBic = (word.size() == 8 || word.size() == 11)
        && std::all_of(word.begin(), word.end(), [](QChar c) { return modChar::IsCapital(c) || modChar::IsDigit(c); });
    return isBic || (word.size() == 5 && modChar::AreDigits(word));
}

bool IsAccount(QStringView word)
{
    return modTableValue::IsIban(word) || (word.size() == 11 && modChar::AreDigits(word));
}

void ApplyAustrian(cImportEntry& entry)
{
    const QString text = entry.ImportPurpose;
    const qsizetype mark = MarkIn(text);
    if (mark < 0) {
        return;
    }
    const QString kind = QStringView(text).left(mark).trimmed().toString();
    const QStringView all = QStringView(text).mid(mark + markSize).trimmed();
    QStringView rest = all;
    QStringView account = TakeWord(rest);
    QStringView bankCode;
    if (!IsAccount(account) && IsBankCode(account)) {
        bankCode = account;
        account = TakeWord(rest);
    }
    if (!IsAccount(account)) {
        entry.ImportPurpose = QString(kind + u' ' + all).trimmed();
        return;
    }
    entry.ImportBeneficiaryAccount = account.toString();
    entry.ImportBeneficiaryBLZ = bankCode.toString();
    entry.ImportBeneficiary = rest.toString();
    entry.ImportPurpose = kind;
}

// "Lastschrift   NAME   IBAN   PURPOSE   ...": three blanks part the pieces. Cards have a place behind the name,
// bookings of the bank itself have no name.
void ApplySpaced(QStringView text, cImportEntry& entry)
{
    QStringList pieces;
    for (const QStringView piece : text.split(u"   ", Qt::SkipEmptyParts)) {
        pieces.append(piece.trimmed().toString());
    }
    pieces.removeAll(QString());
    if (pieces.size() < 2) {
        return;
    }
    entry.ImportType = pieces.takeFirst();
    if (pieces.size() > 1) {
        entry.ImportBeneficiary = pieces.takeFirst();
    }
    if (IsAccount(pieces.first()) && pieces.size() > 1) {
        entry.ImportBeneficiaryAccount = pieces.takeFirst();
        if (IsBankCode(pieces.first()) && pieces.size() > 1) {
            entry.ImportBeneficiaryBLZ = pieces.takeFirst();
        }
    }
    entry.ImportPurpose = pieces.join(u' ').simplified();
}

} // namespace

void modTableDetails::Apply(eDetails details, QStringView text, cImportEntry& entry)
{
    switch (details) {
    case eDetails::None: break;
    case eDetails::Labelled: ApplyLabelled(entry); break;
    case eDetails::Austrian: ApplyAustrian(entry); break;
    case eDetails::Spaced: ApplySpaced(text, entry); break;
    }
}

bool modTableDetails::IsAustrian(QStringView text)
{
    return MarkIn(text) >= 0;
}
