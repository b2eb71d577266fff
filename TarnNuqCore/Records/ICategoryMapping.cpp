#include "Records/ICategoryMapping.h"

namespace tarnnuq {

ICategoryMapping::~ICategoryMapping() = default;

} // namespace tarnnuq
