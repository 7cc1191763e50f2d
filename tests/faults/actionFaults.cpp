// Plays faults against the main actions of the window program; see modFaultRuns.h.
//   actionFaults WINDOWACTIONS PROGRAM SHIM [kill|torn|full|broken|all] [EVERY] [BOOKS]

#include "faults/modFaultRuns.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace {

// An import is committed in portions, closing writes settings one by one, and so does the book that is left for a
// backup.
QList<modFaultRuns::cAction> Actions()
{
    QList<modFaultRuns::cAction> actions;
    for (const QString& name : {u"save"_s, u"from-here"_s, u"split"_s, u"correct"_s, u"delete"_s, u"undo"_s, u"redo"_s,
                                u"import"_s, u"book"_s, u"match"_s, u"rename-category"_s, u"rename-main"_s,
                                u"rename-account"_s, u"merge"_s, u"delete-account"_s, u"restore"_s, u"close"_s}) {
        actions.append({name, {name}, {name, u"before"_s}, name == u"import" || name == u"close", name != u"restore"});
    }
    return actions;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 4) {
        qWarning("actionFaults WINDOWACTIONS PROGRAM SHIM [kill|torn|full|broken|all] [EVERY] [BOOKS]");
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("FAULT_WAIT", "1");
    const cFaultPrograms programs{arguments.at(2), arguments.at(1), arguments.at(3)};
    return modFaultRuns::Play(programs, Actions(), {u"nothing"_s}, arguments.mid(4));
}
