#include "FamilyFiles/Geometry/BuildBudget.h"

#include "FamilyFiles/Geometry/GeometryFailure.h"

#include <algorithm>

namespace familyfiles {

BuildBudget::BuildBudget(std::chrono::milliseconds time, BuildProgress* progress, std::size_t operations)
    : m_end(std::chrono::steady_clock::now() + time), m_progress(progress),
      m_operations(std::max<std::size_t>(operations, 1))
{
}

void BuildBudget::BeginOperation()
{
    m_done = std::min(static_cast<double>(m_begun++) / static_cast<double>(m_operations), 1.0);
    Check();
}

void BuildBudget::Check()
{
    if (IsCancelled()) {
        throw GeometryFailure("geometry.cancelled", "The making of the shape was cancelled", "形状生成已取消");
    }
    if (IsLate()) {
        throw GeometryFailure("geometry.time", "The shape takes too long to make", "形状生成耗时过长");
    }
}

Standard_Boolean BuildBudget::UserBreak()
{
    return IsCancelled() || IsLate();
}

void BuildBudget::Show(const Message_ProgressScope& /*scope*/, Standard_Boolean /*isForced*/) {}

/// Once cancelled it stays so, even if the caller is asked again.
bool BuildBudget::IsCancelled()
{
    if (!m_isCancelled && m_progress != nullptr) {
        m_isCancelled = !m_progress->Report(m_done);
    }
    return m_isCancelled;
}

bool BuildBudget::IsLate() const
{
    return std::chrono::steady_clock::now() > m_end;
}

} // namespace familyfiles
