#pragma once

#include <QString>

// What the user is asked about on the way of statements into the book, and what is taken or left without a word.
struct cStatementWishes
{
    enum class eWish { Ask, Take, Leave };

    eWish Repeats = eWish::Ask;  // rows that a file has more often than the book and that no balance of the bank proves
    eWish Start = eWish::Ask;    // what an account held before its first statement, as its start balance
    eWish Currency = eWish::Ask; // a file in another currency than the book, of an account that had none in it
    eWish Strays = eWish::Ask;   // an MT940 statement, without the details that stand before its first transaction
    // Accounts of the book for new numbers, and the names of another book. Taken: the account below, else one that
    // something speaks for, else a new one.
    eWish Accounts = eWish::Ask;
    QString Account{};
};
