#include "Records/ILegend.h"

namespace tarnnuq {

ILegend::~ILegend() = default;

int ILegend::GetLegendTypeInDigitalModule(LegendType type)
{
    switch (type) {
    case Plan:
        return 0;
    case Elevation:
        return 1;
    case Profile:
        return 2;
    case Unknown:
        break;
    }
    return -1;
}

} // namespace tarnnuq
