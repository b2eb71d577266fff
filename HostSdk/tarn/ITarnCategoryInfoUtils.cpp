#include "tarn/ITarnCategoryInfoUtils.h"

namespace tarn {

ITarnCategoryInfoUtils::~ITarnCategoryInfoUtils() = default;

} // namespace tarn
