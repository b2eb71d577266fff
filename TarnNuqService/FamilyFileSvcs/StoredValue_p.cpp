#include "FamilyFileSvcs/StoredValue_p.h"

#include "Records/IParameter.h"
#include "zept/IFamilyParameter.h"
#include "zept/IFamilyParameterDefinition.h"
#include "zept/IFamilyParameterDefinitions.h"

#include <QRegExp>
#include <QString>

namespace tarnnuq {

namespace {

enum Storage
{
    YesNo = 3,
    Integer = 4,
    FloatingPoint = 5,
    Text = 6
};

/// @return none when the parameter has no definition
std::optional<int> StorageOf(
    const zept::IFamilyParameterDefinitions* definitions, const zept::IFamilyParameter& parameter)
{
    const zept::IFamilyParameterDefinition* definition =
        definitions ? definitions->FindDefinition(parameter.GetIdentity()) : nullptr;
    return definition ? std::optional<int>(definition->GetStorageType()) : std::nullopt;
}

// Hosts compare with the word for yes in the bytes of the GBK code page. Qt reads them as UTF-8, which they are not, so
// that the word itself does not count.
bool IsYes(const std::wstring& text)
{
    const QString word = QString::fromStdWString(text).trimmed().toLower();
    return word == QString::fromUtf8("\xCA\xC7") || word == QLatin1String("true") || word.toInt(nullptr, 10) != 0;
}

/// Made ready once: the last copy of an expression may allocate in its destructor, and without memory that ends the
/// process.
const QRegExp& TrailingZeros()
{
    static const QRegExp expression = [] {
        QRegExp made(QStringLiteral("(\\.){0,1}0+$"));
        made.isValid();
        return made;
    }();
    return expression;
}

std::wstring NumberText(double number)
{
    QString text = QStringLiteral("%1").arg(number, 0, 'f', -1);
    return text.replace(TrailingZeros(), QString()).toStdWString();
}

} // namespace

bool SetStoredValue(
    const zept::IFamilyParameterDefinitions* definitions, const std::wstring& text, zept::IFamilyParameter& parameter)
{
    switch (StorageOf(definitions, parameter).value_or(0)) {
    case YesNo:
        parameter.SetBool(IsYes(text));
        return true;
    case Integer:
        parameter.SetInt(QString::fromStdWString(text).toInt(nullptr, 10));
        return true;
    case FloatingPoint:
        parameter.SetDouble(QString::fromStdWString(text).toDouble());
        return true;
    case Text:
        parameter.SetText(text);
        return true;
    default:
        return false;
    }
}

std::optional<std::wstring> StoredValueText(
    const zept::IFamilyParameterDefinitions* definitions, const zept::IFamilyParameter& parameter)
{
    switch (StorageOf(definitions, parameter).value_or(0)) {
    case YesNo:
        return IParameter::GetLogicStorageStr(parameter.GetBool());
    case Integer:
        return QString::number(parameter.GetInt(), 10).toStdWString();
    case FloatingPoint:
        return NumberText(parameter.GetDouble());
    case Text:
        return parameter.GetText();
    default:
        return std::nullopt;
    }
}

} // namespace tarnnuq
