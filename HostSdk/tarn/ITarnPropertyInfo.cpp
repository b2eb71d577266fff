#include "tarn/ITarnPropertyInfo.h"

namespace tarn {

ITarnPropertyInfo::~ITarnPropertyInfo() = default;

} // namespace tarn
