#pragma once

#include <QDate>

class cDataAccess;

// The example household: an invented family, the same to the last cent for the same plan. It fills new books for trying
// the program out, and larger ones for tests and measurements.
namespace modDemo {

struct cDemoPlan
{
    QDate Today; // the book ends around this day
    int Years = 3;
    int Entries = 0; // rows that table `data` gets; 0 for as many as such a family really has
};

// A plan for a given number of rows: up to 5,000 in 3 years, up to 50,000 in 10, more in 25.
[[nodiscard]] cDemoPlan OfSize(int entries, QDate today);

// Writes the household into a new book made from the template. False after the first operation that failed.
[[nodiscard]] bool Write(cDataAccess& data, const cDemoPlan& plan);

} // namespace modDemo
