#pragma once

#include "views/book/cNationalSettings.h"

#include <QDialog>

class QComboBox;
class QFormLayout;
class QLabel;

// National settings: language, form of numbers, currency, with a preview of each.
class frmLaender final : public QDialog
{
    Q_OBJECT

public:
    explicit frmLaender(cNationalSettings& settings, QWidget* parent = nullptr);

private:
    [[nodiscard]] QComboBox* AddChoice(const QString& label, const QList<cNationalSettings::cOption>& options,
                                       const QString& stored);
    [[nodiscard]] QLabel* AddSample(const QString& label, const char* name);
    void AddHint(const QString& text);
    void ShowPreview();
    [[nodiscard]] cNationalSettings::cFields Read() const;
    void Save();

    cNationalSettings& m_settings;
    QFormLayout* m_form;
    QComboBox* m_language = nullptr;
    QComboBox* m_format = nullptr;
    QComboBox* m_currency = nullptr;
    QLabel* m_amount = nullptr;
    QLabel* m_negative = nullptr;
    QLabel* m_date = nullptr;
};
