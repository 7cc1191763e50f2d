// Plays faults against every writing command of the command line program; see modFaultRuns.h.
//   commandFaults PROGRAM SHIM [kill|torn|full|broken|all] [EVERY] [BOOKS]

#include "faults/modFaultRuns.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace {

// `line` has "|" between its arguments.
modFaultRuns::cAction Command(const QString& name, const QString& line, bool isInParts = false)
{
    return {name, line.split(u'|'), {u"balances"_s}, isInParts};
}

QList<modFaultRuns::cAction> Commands()
{
    const QString food = u"Haushalt; Lebensmittel"_s;
    return {
        Command(u"add"_s, u"add|--amount|12,34|--category|%1|--account|Girokonto|--date|2026-11-05"_s.arg(food)),
        Command(u"import"_s, u"import|mehr.csv|--account|DE02100100100006820101"_s, true),
        Command(u"book"_s, u"book|--all"_s),
        Command(u"match"_s, u"match"_s),
        Command(u"change from here"_s, u"change|14|--amount|777|--from|2026-12-01|--yes"_s),
        Command(u"delete"_s, u"delete|20|--yes"_s),
        Command(u"rename account"_s, u"accounts|rename|Girokonto|Hauptkonto|--entries|yes"_s),
        Command(u"delete account"_s, u"accounts|delete|Sparkonto|--move-to|Girokonto|--yes"_s),
        Command(u"rename category"_s, u"categories|rename|%1|Haushalt; Essen"_s.arg(food)),
        Command(u"rename main"_s, u"categories|rename|Haushalt|Haus"_s),
        Command(u"merge"_s, u"categories|merge|%1|Alltag; Bus und Bahn|--yes"_s.arg(food)),
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
