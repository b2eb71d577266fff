#pragma once

#include <QNetworkRequest>
#include <string>

namespace tarnnuq {

/// The cache file of a thumbnail, by the host's rule. Every file has the extension ".png", whatever the image's format
/// is: both providers must find the same one, before they know what the server sends.
std::wstring ThumbnailFilePath(const std::wstring& url);

/// The request for a thumbnail: its URL and nothing else. Images are public; no header tells who asks for them.
QNetworkRequest ThumbnailRequest(const std::wstring& url);

} // namespace tarnnuq
