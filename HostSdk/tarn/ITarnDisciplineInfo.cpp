#include "tarn/ITarnDisciplineInfo.h"

namespace tarn {

ITarnDisciplineInfo::~ITarnDisciplineInfo() = default;

} // namespace tarn
