#pragma once

#include <QPlainTextEdit>
#include <QStringList>

// What came of the last action, a few lines high; more of them scroll. Hidden while there is nothing to say.
class cSummaryText final : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit cSummaryText(QWidget* parent = nullptr);

    void ShowLines(const QStringList& lines);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void Fit();
};
