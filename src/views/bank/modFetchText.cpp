#include "views/bank/modFetchText.h"

#include "base/cText.h"

namespace {

QString Counts(const cBankFetch::cLine& line)
{
    QStringList parts{cText::Tr("{0} neu", {QString::number(line.New)})};
    if (line.Known > 0) {
        parts.append(cText::Tr("{0} schon vorhanden", {QString::number(line.Known)}));
    }
    if (line.LeftOut > 0) {
        parts.append(cText::Tr("{0} ausgelassen", {QString::number(line.LeftOut)}));
    }
    return parts.join(QStringLiteral(", "));
}

} // namespace

QString modFetchText::State(const cBankFetch& fetch, qsizetype account)
{
    const QList<cBankFetch::cLine>& lines = fetch.Lines();
    if (account < lines.size()) {
        const cBankFetch::cLine& line = lines.at(account);
        switch (line.State) {
        case cBankFetch::eState::Waiting: return cText::Tr("wartet");
        case cBankFetch::eState::Asked: return cText::Tr("wird abgerufen …");
        case cBankFetch::eState::Came: return cText::Tr("wird übernommen …");
        case cBankFetch::eState::Done: return Counts(line);
        case cBankFetch::eState::Failed: return line.Text;
        case cBankFetch::eState::Idle: break;
        }
    }
    return fetch.Accounts().at(account).LastText;
}

QString modFetchText::Details(const cBankFetch& fetch, qsizetype account)
{
    if (account < 0 || account >= fetch.Lines().size()) {
        return {};
    }
    const cBankFetch::cLine& line = fetch.Lines().at(account);
    QStringList parts;
    if (line.Failure.IsSet()) {
        parts.append(line.Failure.Text);
        if (!line.Failure.BankWords.isEmpty()) {
            parts.append(cText::Tr("Die Bank schreibt: {0}", {line.Failure.BankWords}));
        }
    }
    parts.append(line.Notes);
    return parts.join(u'\n');
}
