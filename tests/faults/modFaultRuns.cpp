#include "faults/modFaultRuns.h"

#include <QTextStream>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cCounts
{
    int Runs = 0;
    int Before = 0;
    int After = 0;
    int Wrong = 0;
};

struct cStates
{
    QStringList Before;
    QStringList After;
};

bool IsBetween(const QStringList& rows, const cStates& states)
{
    return std::all_of(rows.begin(), rows.end(),
                       [&](const QString& row) { return states.Before.contains(row) || states.After.contains(row); })
        && std::all_of(states.Before.begin(), states.Before.end(),
                       [&](const QString& row) { return rows.contains(row) || !states.After.contains(row); });
}

QStringList Compared(QStringList rows, const modFaultRuns::cAction& action)
{
    rows.removeIf([&](const QString& row) { return !action.HasSettings && row.startsWith(u"setting|"); });
    return rows;
}

// The first row that is in one of the two states only.
QString Difference(const QStringList& rows, const QStringList& state)
{
    for (qsizetype i = 0; i < qMax(rows.size(), state.size()); ++i) {
        if (rows.value(i) != state.value(i)) {
            return rows.value(i) + u" instead of "_s + state.value(i);
        }
    }
    return {};
}

// Runs the action with one fault; what was wrong with what it left.
QStringList PlayOne(cFaultScene& scene, const modFaultRuns::cAction& action, const QString& kind, long number,
                    const cStates& states, cCounts& counts)
{
    const QStringList left = Compared(scene.Run(action.Arguments, kind, number), action);
    const bool isBefore = left == states.Before;
    const bool isAfter = left == states.After;
    counts.Before += isBefore ? 1 : 0;
    counts.After += isAfter ? 1 : 0;
    QStringList wrong;
    if (!scene.IsKilled && scene.ExitCode == 0 && !isAfter) {
        wrong.append(u"says that it was done"_s);
    } else if (!isBefore && !isAfter && !(action.IsInParts && IsBetween(left, states))) {
        wrong.append(u"neither before nor after: "_s + Difference(left, states.After));
    }
    return wrong + scene.Faults();
}

cCounts PlayAction(cFaultScene& scene, const modFaultRuns::cAction& action, const QString& kind, long first, long every,
                   QTextStream& out)
{
    cCounts counts;
    const QStringList before = Compared(scene.Run(action.Before, {}, 0), action);
    const cStates states{before, Compared(scene.Run(action.Arguments, {}, 0), action)};
    const long calls = scene.Calls();
    if (scene.ExitCode != 0 || states.After == states.Before || calls == 0) {
        out << "  " << action.Name << ": did nothing (" << scene.Output.trimmed() << ")\n";
        ++counts.Wrong;
        return counts;
    }
    for (long number = first; number <= calls; number += every) {
        ++counts.Runs;
        const QStringList wrong = PlayOne(scene, action, kind, number, states, counts);
        counts.Wrong += wrong.isEmpty() ? 0 : 1;
        for (const QString& text : wrong) {
            out << "  " << action.Name << ", " << kind << " at call " << number << " of " << calls << ": " << text
                << '\n';
        }
    }
    out << QStringLiteral("%1 %2 %3 runs: %4 as before, %5 done, %6 wrong\n")
               .arg(action.Name, -18)
               .arg(kind, -7)
               .arg(counts.Runs, 5)
               .arg(counts.Before)
               .arg(counts.After)
               .arg(counts.Wrong);
    out.flush();
    return counts;
}

} // namespace

int modFaultRuns::Play(const cFaultPrograms& programs, const QList<cAction>& actions, const QStringList& arrival,
                       const QStringList& arguments)
{
    QTextStream out(stdout);
    const QString wanted = arguments.value(0, u"all"_s);
    const QStringList kinds =
        wanted == u"all" ? QStringList{u"kill"_s, u"torn"_s, u"full"_s, u"broken"_s} : QStringList(wanted);
    const long every = std::max(1L, arguments.value(1).toLong());
    const int books = std::max(1, arguments.value(2).toInt());
    cCounts all;
    for (int book = 0; book < books; ++book) {
        cFaultScene scene(programs, book, arrival);
        for (const QString& kind : kinds) {
            for (const cAction& action : actions) {
                // Another book begins at another call, so that few are passed over by all of them.
                const cCounts counts = PlayAction(scene, action, kind, 1 + book % every, every, out);
                all.Runs += counts.Runs;
                all.Wrong += counts.Wrong;
            }
        }
    }
    out << all.Runs << " runs on " << books << " books, " << all.Wrong << " wrong\n";
    return all.Wrong == 0 ? 0 : 1;
}
