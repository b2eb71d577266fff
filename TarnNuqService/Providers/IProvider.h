#pragma once

#include "ResponseHandlers/TemplateExport.h"

#include <QObject>
#include <memory>
#include <string>

class QImage;

namespace tarnnuq {

/// Provides the value that belongs to a key; how the value is handed out is the concrete provider's affair.
///
/// Has no meta-object of its own: templates cannot have one, so that a concrete provider declares its signal itself.
/// @tparam K the key
/// @tparam V the value
template <typename K, typename V>
class IProvider : public QObject
{
public:
    /// @param parent the Qt parent; null leaves the ownership with the caller
    explicit IProvider(QObject* parent) : QObject(parent) {}
    ~IProvider() override = default;

    /// Starts to look the value up.
    virtual void Provide(K key) = 0;
};

extern template class TARNNUQSERVICE_TEMPLATE_DECLARATION IProvider<std::wstring, std::shared_ptr<QImage>>;

} // namespace tarnnuq
