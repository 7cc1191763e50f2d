#include "model/cTemplateItem.h"

#include "base/cText.h"
#include "base/modAmount.h"
#include "model/modWord.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString JoinPath(const cTemplateItem& item, const QString& nothing, const QString& unsorted)
{
    if (item.TemplateCategory.isEmpty() && item.TemplateName.isEmpty()) {
        return nothing;
    }
    if (item.TemplateCategory.isEmpty()) {
        return cText::Fill(unsorted, {item.TemplateName});
    }
    if (item.TemplateName.isEmpty()) {
        return item.TemplateCategory;
    }
    return item.TemplateCategory + u"; " + item.TemplateName;
}

} // namespace

bool modTemplate::IsAccount(const cTemplateItem& item)
{
    return item.TemplateType == modWord::Konto;
}

bool modTemplate::IsVisible(const cTemplateItem& item)
{
    return item.TemplateVisible.trimmed() != u"0";
}

int modTemplate::Priority(const cTemplateItem& item)
{
    return item.TemplatePriority.toInt();
}

qint64 modTemplate::DefaultValueCents(const cTemplateItem& item)
{
    return modAmount::CentsFromText(item.TemplateDefaultValue).value_or(0);
}

QString modTemplate::CleanName(const QString& name)
{
    QString kept;
    for (const QChar c : name) {
        if (!u"&'<>\";"_s.contains(c)) {
            kept.append(c);
        }
    }
    return kept;
}

QString modTemplate::Path(const cTemplateItem& item)
{
    return JoinPath(item, u"Keine Angabe"_s, u"Sonstiges; {0}"_s);
}

QString modTemplate::ShownPath(const cTemplateItem& item)
{
    return JoinPath(item, cText::Tr("Keine Angabe"), cText::Tr("Sonstiges; {0}"));
}
