#include "cli/console/modCliRecord.h"

using namespace Qt::Literals::StringLiterals;

cJsonObject modCliRecord::Entry(const cEntryItem& entry)
{
    cJsonObject json;
    json.Number(u"ID"_s, entry.ID)
        .Date(u"EntryDate"_s, entry.EntryDate)
        .Date(u"EntryDateEnd"_s, entry.EntryDateEnd)
        .Text(u"EntryType"_s, entry.EntryType)
        .Text(u"EntryInterval"_s, entry.EntryInterval)
        .Text(u"EntryAccount"_s, entry.EntryAccount)
        .Text(u"EntryAccountMove"_s, entry.EntryAccountMove)
        .Text(u"EntryCategory"_s, entry.EntryCategory)
        .Amount(u"EntryValue"_s, entry.EntryValue)
        .Text(u"EntryDescription"_s, entry.EntryDescription)
        .Text(u"EntryFlags"_s, entry.EntryFlags);
    return json;
}

QString modCliRecord::Shares(const modPeople::cShares& shares)
{
    QStringList parts;
    for (const modPeople::cShare& share : shares) {
        cJsonObject json;
        parts.append(json.Text(u"Person"_s, share.Person).Number(u"Part"_s, share.Part).ToString());
    }
    return modJson::Array(parts);
}

cJsonObject modCliRecord::FixMod(const cEntryItemFixMod& fixMod)
{
    cJsonObject json;
    json.Number(u"ID"_s, fixMod.ID)
        .Number(u"EntryRelation"_s, fixMod.EntryRelation)
        .Text(u"EntryModType"_s, fixMod.EntryModType)
        .Date(u"EntryStartDate"_s, fixMod.EntryStartDate)
        .Date(u"EntryEndDate"_s, fixMod.EntryEndDate)
        .Amount(u"EntryValue"_s, fixMod.EntryValue)
        .Text(u"EntryComment"_s, fixMod.EntryComment)
        .Date(u"EntryDay"_s, fixMod.EntryDay);
    return json;
}

cJsonObject modCliRecord::Template(const cTemplateItem& item)
{
    cJsonObject json;
    json.Number(u"ID"_s, item.ID)
        .Text(u"TemplateCategory"_s, item.TemplateCategory)
        .Text(u"TemplateName"_s, item.TemplateName)
        .Text(u"TemplateComment"_s, item.TemplateComment)
        .Number(u"TemplatePriority"_s, modTemplate::Priority(item))
        .Truth(u"TemplateVisible"_s, modTemplate::IsVisible(item));
    return json;
}

cJsonObject modCliRecord::Row(const cImportEntry& row)
{
    cJsonObject json;
    json.Number(u"ID"_s, row.ID)
        .Text(u"ImportAccount"_s, row.ImportAccount)
        .Date(u"ImportDate"_s, row.ImportDate)
        .Text(u"ImportType"_s, row.ImportType)
        .Text(u"ImportPurpose"_s, row.ImportPurpose)
        .Text(u"ImportBeneficiary"_s, row.ImportBeneficiary)
        .Text(u"ImportBeneficiaryAccount"_s, row.ImportBeneficiaryAccount)
        .Text(u"ImportBeneficiaryBLZ"_s, row.ImportBeneficiaryBLZ)
        .Amount(u"ImportValue"_s, row.ImportValue)
        .Text(u"ImportCurrency"_s, row.ImportCurrency)
        .Truth(u"ImportAssigned"_s, row.ImportAssigned)
        .Number(u"ImportAssignedEntry"_s, row.ImportAssignedEntry);
    return json;
}
