#pragma once

#include <QDialog>

class QLabel;

// "Über Kontorelle": version, licence, libraries. Who clicks the coins out of the picture finds the game.
class frmUeber final : public QDialog
{
    Q_OBJECT

public:
    // `name` is the program with its version.
    explicit frmUeber(const QString& name, QWidget* parent = nullptr);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void GameRequested();

private:
    void Build(const QString& name);
    void Knock();

    QLabel* m_picture = nullptr;
    QLabel* m_answer = nullptr;
    int m_knocks = 0;
};
