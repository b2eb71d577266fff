#pragma once

#include <cstddef>

namespace familyfiles {

/// Bounds of what a recipe may ask for. They keep what cannot be interrupted short and sizes where geometry is exact.
struct RecipeLimits
{
    static constexpr std::size_t MostBytes = 1 << 20;
    static constexpr std::size_t MostSteps = 256;
    static constexpr std::size_t DeepestSteps = 16;
    static constexpr std::size_t MostNames = 256;
    static constexpr std::size_t MostRequirements = 64;
    static constexpr std::size_t MostFormulas = 8192;
    static constexpr std::size_t MostPoints = 512;
    static constexpr std::size_t MostPathPoints = 128;
    static constexpr std::size_t MostSections = 32;
    static constexpr std::size_t MostCentreLines = 64;
    static constexpr std::size_t MostHoles = 2000;
    static constexpr std::size_t MostCopies = 2000;
    static constexpr std::size_t MostFaces = 6000;
    static constexpr int MostOf = 1000;             ///< counts
    static constexpr double SmallestLength = 0.1;   ///< mm
    static constexpr double LargestLength = 100000; ///< mm
    static constexpr double SmallestAngle = 0.01;   ///< degrees
    static constexpr double LargestTurn = 36000;    ///< degrees
    static constexpr double SmallestFactor = 0.001;
    static constexpr double LargestFactor = 1000;
};

} // namespace familyfiles
