#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

// The one step through which every text for the user passes. German is the source language, so without a catalogue the
// text comes back unchanged.
class cText
{
    Q_DECLARE_TR_FUNCTIONS(cText)

public:
    // The text in the chosen language.
    [[nodiscard]] static QString Tr(const char* german) { return tr(german); }

    // The text in the chosen language with "{0}", "{1}", ... replaced by `values`.
    [[nodiscard]] static QString Tr(const char* german, const QStringList& values) { return Fill(tr(german), values); }

    // Replaces "{0}", "{1}", ... in one pass, so that braces inside a value stay as they are.
    [[nodiscard]] static QString Fill(const QString& text, const QStringList& values);
};
