// Plays faults against every writing command of the command line program; see modFaultRuns.h.
//   commandFaults PROGRAM SHIM [kill|torn|full|broken|all] [EVERY] [BOOKS]

#include "faults/modFaultRuns.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace {

QList<modFaultRuns::cAction> Commands()
{
    const QStringList before{u"balances"_s};
    return {
        {u"add"_s,
         {u"add"_s, u"--amount"_s, u"12,34"_s, u"--category"_s, u"Haushalt; Lebensmittel"_s, u"--account"_s,
          u"Girokonto"_s, u"--date"_s, u"2026-11-05"_s},
         before},
        {u"import"_s, {u"import"_s, u"mehr.csv"_s, u"--account"_s, u"DE02100100100006820101"_s}, before, true},
        {u"book"_s, {u"book"_s, u"--all"_s}, before},
        {u"match"_s, {u"match"_s}, before},
        {u"change from here"_s,
         {u"change"_s, u"14"_s, u"--amount"_s, u"777"_s, u"--from"_s, u"2026-12-01"_s, u"--yes"_s},
         before},
        {u"delete"_s, {u"delete"_s, u"20"_s, u"--yes"_s}, before},
        {u"rename account"_s,
         {u"accounts"_s, u"rename"_s, u"Girokonto"_s, u"Hauptkonto"_s, u"--entries"_s, u"yes"_s},
         before},
        {u"delete account"_s,
         {u"accounts"_s, u"delete"_s, u"Sparkonto"_s, u"--move-to"_s, u"Girokonto"_s, u"--yes"_s},
         before},
        {u"rename category"_s,
         {u"categories"_s, u"rename"_s, u"Haushalt; Lebensmittel"_s, u"Haushalt; Essen"_s},
         before},
        {u"rename main"_s, {u"categories"_s, u"rename"_s, u"Haushalt"_s, u"Haus"_s}, before},
        {u"merge"_s,
         {u"categories"_s, u"merge"_s, u"Haushalt; Lebensmittel"_s, u"Alltag; Bus und Bahn"_s, u"--yes"_s},
         before},
    };
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3) {
        qWarning("commandFaults PROGRAM SHIM [kill|torn|full|broken|all] [EVERY] [BOOKS]");
        return 2;
    }
    const cFaultPrograms programs{arguments.at(1), arguments.at(1), arguments.at(2)};
    return modFaultRuns::Play(programs, Commands(), {}, arguments.mid(3));
}
