#pragma once

#include <QList>
#include <QString>

// Brings statement texts that banks write against the rules into the form that the reader expects. A text that follows
// the rules comes back as it is.
namespace modMT940Repair {

struct cRepaired
{
    QString Text;
    QList<int> Lines; // for each line of Text the line of the file it began on, from 1; empty when nothing was changed
};

[[nodiscard]] cRepaired Repair(const QString& text);

} // namespace modMT940Repair
