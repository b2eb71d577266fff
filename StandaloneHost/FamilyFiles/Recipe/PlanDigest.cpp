#include "FamilyFiles/Recipe/PlanDigest.h"

#include <QCryptographicHash>
#include <array>
#include <charconv>

namespace familyfiles {

namespace {

/// Writes a plan as a text in which everything has its place.
class PlanText
{
public:
    void Add(const ShapePlan& plan)
    {
        for (const PlanStep& step : plan.steps) {
            Add(step.shape.index(), step.material);
            std::visit([this](const auto& shape) { Add(shape); }, step.shape);
        }
        Add(plan.result, plan.solidCount, plan.material, plan.camera);
        AddEach(plan.centreLines);
    }

    void Add(const ConnectorMark& mark)
    {
        Add(mark.position, mark.direction, static_cast<int>(mark.shape), mark.width, mark.height);
    }

    template <typename Item>
    void AddEach(const std::vector<Item>& items)
    {
        Add(items.size());
        for (const Item& item : items) {
            Add(item);
        }
    }

    std::string Digest() const
    {
        const QByteArray bytes = QByteArray::fromRawData(m_text.data(), static_cast<int>(m_text.size()));
        return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex().toStdString();
    }

private:
    template <typename First, typename Second, typename... Others>
    void Add(const First& first, const Second& second, const Others&... others)
    {
        Add(first);
        Add(second);
        (Add(others), ...);
    }

    void Add(double number)
    {
        std::array<char, 32> text{};
        // Zero has one sign here.
        const auto end = std::to_chars(text.data(), text.data() + text.size(), number == 0 ? 0.0 : number).ptr;
        m_text.append(text.data(), end);
        m_text += ' ';
    }

    void Add(std::size_t number) { m_text += std::to_string(number) + ' '; }
    void Add(int number) { m_text += std::to_string(number) + ' '; }
    void Add(bool flag) { m_text += flag ? "y " : "n "; }
    void Add(const std::string& text) { m_text += std::to_string(text.size()) + ':' + text + ' '; }
    void Add(const Point3& point) { Add(point.x, point.y, point.z); }
    void Add(const Point2& point) { Add(point.u, point.v); }
    void Add(const Frame& frame) { Add(frame.origin, frame.u, frame.v, frame.w); }
    void Add(const Segment& segment) { Add(segment.from, segment.to, segment.isArc, segment.via); }
    void Add(const PathSegment& segment) { Add(segment.from, segment.to, segment.isArc, segment.via); }

    void Add(const Loop& loop)
    {
        Add(static_cast<int>(loop.kind), loop.centre, loop.radiusU, loop.radiusV, loop.turn);
        AddEach(loop.segments);
    }

    void Add(const Profile& profile)
    {
        Add(profile.outline);
        AddEach(profile.holes);
    }

    void Add(const BlockShape& shape) { Add(shape.place, shape.corner, shape.size); }
    void Add(const CylinderShape& shape) { Add(shape.place, shape.radius, shape.length, shape.angle); }
    void Add(const ConeShape& shape) { Add(shape.place, shape.radius, shape.endRadius, shape.length); }
    void Add(const SphereShape& shape) { Add(shape.centre, shape.radius); }
    void Add(const DomeShape& shape) { Add(shape.place, shape.radius, shape.depth); }
    void Add(const TorusShape& shape) { Add(shape.place, shape.radius, shape.sectionRadius, shape.angle); }
    void Add(const PrismShape& shape) { Add(shape.place, shape.section, shape.length); }
    void Add(const RevolvedShape& shape) { Add(shape.place, shape.section, shape.angle); }

    void Add(const SweptShape& shape)
    {
        Add(shape.place, shape.section, shape.hasSharpCorners);
        AddEach(shape.path);
    }

    void Add(const LoftSection& section) { Add(section.place, section.section); }

    void Add(const LoftShape& shape)
    {
        Add(shape.isRuled);
        AddEach(shape.sections);
    }

    void Add(const std::vector<std::size_t>& steps) { AddEach(steps); }
    void Add(const BooleanStep& step) { Add(static_cast<int>(step.kind), step.arguments, step.tools); }

    void Add(const EdgeFilter& filter)
    {
        Add(filter.wantsDirection, filter.direction, filter.wantsLines, filter.wantsCircles, filter.wantsPlane,
            filter.planeNormal, filter.planeOffset, filter.wantsBox, filter.boxLow, filter.boxHigh);
    }

    void Add(const EdgeStep& step)
    {
        Add(step.isFillet, step.of, step.size);
        AddEach(step.filters);
    }

    void Add(const Motion& motion)
    {
        Add(static_cast<int>(motion.kind), motion.centre, motion.direction, motion.amount);
    }

    void Add(const std::vector<Motion>& motions) { AddEach(motions); }

    void Add(const CopyStep& step)
    {
        Add(step.of);
        AddEach(step.copies);
    }

    void Add(const CentreLine& line) { Add(line.isCircle, line.from, line.to, line.direction, line.radius); }

    std::string m_text;
};

} // namespace

std::string PlanDigest(const ShapePlan& plan, const std::vector<ConnectorMark>& connectors)
{
    PlanText text;
    text.Add(plan);
    text.AddEach(connectors);
    return text.Digest();
}

} // namespace familyfiles
