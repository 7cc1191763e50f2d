#include "views/statement/modImportPreview.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "import/stage/cImportResult.h"
#include "views/ledger/modImportText.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

QString modImportPreview::Kind(eSkipped kind)
{
    switch (kind) {
    case eSkipped::Pending: return cText::Tr("vorgemerkt");
    case eSkipped::Balance: return cText::Tr("Saldo");
    case eSkipped::Unreadable: return cText::Tr("nicht lesbar");
    case eSkipped::OtherCurrency: return cText::Tr("andere Währung");
    case eSkipped::Void: return cText::Tr("nicht ausgeführt");
    case eSkipped::CutOff: return cText::Tr("vielleicht abgeschnitten");
    }
    return {};
}

QString modImportPreview::Count(const cImportResult& result, const cAmountFormat& format)
{
    QStringList parts{cText::Tr("{0} neu", {modImportText::Count(result.Staged)})};
    if (!result.Rows.isEmpty()) {
        const auto isEarlier = [](const cImportEntry& a, const cImportEntry& b) { return a.ImportDate < b.ImportDate; };
        const auto [first, last] = std::minmax_element(result.Rows.begin(), result.Rows.end(), isEarlier);
        qint64 sum = 0;
        for (const cImportEntry& row : result.Rows) {
            sum += row.ImportValue;
        }
        parts.append(
            cText::Tr("vom {0} bis {1}", {modDate::ToText(first->ImportDate), modDate::ToText(last->ImportDate)}));
        parts.append(cText::Tr("zusammen {0}", {format.Cents(sum)}));
    }
    if (const qsizetype known = result.Duplicates.size() + result.Alike.size(); known > 0) {
        parts.append(cText::Tr("{0} schon vorhanden", {QString::number(known)}));
    }
    if (!result.Repeats.isEmpty()) {
        parts.append(cText::Tr("{0} mehrfach gleich", {QString::number(result.Repeats.size())}));
    }
    if (!result.Skipped.isEmpty()) {
        parts.append(cText::Tr("{0} ausgelassen", {QString::number(result.Skipped.size())}));
    }
    return parts.join(u", "_s);
}

QStringList modImportPreview::LeftOut(const cImportResult& result, const cAmountFormat& format, qsizetype most)
{
    QStringList lines;
    for (const cReadProblem& problem : result.Problems) {
        lines.append(modImportText::Problem(problem));
    }
    for (const cSkippedRow& row : result.Skipped) {
        lines.append(modImportText::Problem(row.Reason));
    }
    for (const cImportEntry& row : result.Duplicates + result.Alike) {
        lines.append(cText::Tr("schon vorhanden: {0}", {modImportText::Row(row, format)}));
    }
    for (const cRepeat& repeat : result.Repeats) {
        lines.append(cText::Tr("mehrfach gleich: {0}", {modImportText::Row(repeat.Entry, format)}));
    }
    if (result.Zero > 0) {
        lines.append(cText::Tr("ohne Betrag: {0}", {modImportText::Count(result.Zero)}));
    }
    if (lines.size() > most) {
        const QString rest = QString::number(lines.size() - most);
        lines = lines.first(most) + QStringList(cText::Tr("… und {0} weitere", {rest}));
    }
    return lines;
}
