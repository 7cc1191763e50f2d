// Plays invented households through years of statements and prints what became of their books.
// usage: playHouseholds [HOUSEHOLDS [MONTHS [FIRST SEED [trace]]]]
#include "household/cHouseholdPlay.h"

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char* argv[])
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int count = arguments.value(1, QStringLiteral("5")).toInt();
    const int months = arguments.value(2, QStringLiteral("60")).toInt();
    const quint32 seed = arguments.value(3, QStringLiteral("1")).toUInt();
    const bool isTrace = arguments.value(4) == QLatin1String("trace");
    const QDate first(2021, 1, 1);
    QTextStream out(stdout);
    out << "seed\trows\tlost\topen\tdays\twrong\tknown\tright\tsure\tsurewrong\tquestions\n";
    bool isGood = true;
    for (quint32 i = 0; i < static_cast<quint32>(count); ++i) {
        const cHousehold household(seed + i, first, months);
        const cHouseholdPlay::cFigures figures = cHouseholdPlay(household, first, months, isTrace).Play();
        out << seed + i << '\t' << figures.Rows << '\t' << figures.Lost << '\t' << figures.Open << '\t' << figures.Days
            << '\t' << figures.WrongDays << '\t' << figures.Known << '\t' << figures.Right << '\t' << figures.Sure
            << '\t' << figures.SureWrong << '\t' << figures.Questions << Qt::endl;
        for (const QString& line : figures.Faults + figures.Mistakes) {
            out << "  " << line << '\n';
        }
        isGood = isGood && figures.Lost == 0 && figures.WrongDays == 0 && figures.SureWrong == 0;
    }
    return isGood ? 0 : 1;
}
