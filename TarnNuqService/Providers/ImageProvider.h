#pragma once

#include "Providers/IProvider.h"

namespace tarnnuq {

/// Provides the image that belongs to a key.
/// @tparam K the key
template <typename K>
class ImageProvider : public IProvider<K, std::shared_ptr<QImage>>
{
public:
    /// @param parent the Qt parent; null leaves the ownership with the caller
    explicit ImageProvider(QObject* parent) : IProvider<K, std::shared_ptr<QImage>>(parent) {}
    ~ImageProvider() override = default;
};

extern template class TARNNUQSERVICE_TEMPLATE_DECLARATION ImageProvider<std::wstring>;

} // namespace tarnnuq
