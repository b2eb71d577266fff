#pragma once

#include "tarn/TarnFilePathSettings.h"

#include <string>

namespace testsupport {

/// Product paths with answers to set.
class FakeFilePathSettings final : public tarn::TarnFilePathSettings
{
public:
    std::wstring productDbFile = L"C:\\product\\components.db";
    std::wstring product2DFolder = L"C:\\product\\2d";

protected:
    std::wstring DoGetCurrentProductDBFilePath() const override { return productDbFile; }
    std::wstring DoGetCurrentProduct2DFolderPath() const override { return product2DFolder; }
};

} // namespace testsupport
