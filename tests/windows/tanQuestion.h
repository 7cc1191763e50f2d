#pragma once

#include "base/cBankUser.h"

#include <QBuffer>
#include <QImage>

// The question for a TAN with everything that a bank may send.
inline cTanQuestion TanQuestion(eTanDisplay display)
{
    cTanQuestion question;
    question.Bank = QStringLiteral("Volksbank Raiffeisenbank Ahornstadt-Hohenfels eG");
    question.Procedure = QStringLiteral("Smart-TAN plus optisch");
    question.Medium = QStringLiteral("Karte 1234567890");
    question.Label = QStringLiteral("TAN-Eingabe:");
    question.Challenge = QStringLiteral("<u>Umsatzabfrage</u>\r\nKonto 4711");
    question.Display = display;
    question.Flicker = QByteArray("\x1f\x1e\x01", 3);
    question.MostCharacters = 6;
    question.IsNumber = true;
    QImage image(10, 10, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer file(&question.Picture);
    image.save(&file, "PNG");
    return question;
}
