#include "tarn/ITarnCategoryInfo.h"

namespace tarn {

ITarnCategoryInfo::~ITarnCategoryInfo() = default;

} // namespace tarn
