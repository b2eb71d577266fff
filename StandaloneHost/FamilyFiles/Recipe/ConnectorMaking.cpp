#include "FamilyFiles/Recipe/ConnectorMaking.h"

#include "FamilyFiles/Formulas/Expression.h"
#include "FamilyFiles/Recipe/NumberBounds.h"
#include "FamilyFiles/Recipe/RecipeFailure.h"

#include <array>

namespace familyfiles {

namespace {

double Number(const std::string& formula, NumberKind kind, const Connector& connector, const Scope& scope)
{
    Reason reason;
    const std::optional<Expression> expression = Expression::Compile(formula, scope, connector.name, reason);
    if (expression && expression->Kind() == ValueKind::Text) {
        throw RecipeFailure("formula.wrong-kind", '"' + formula + "\" is no number", "“" + formula + "”的结果不是数值");
    }
    const std::optional<double> number = expression ? expression->Number(scope, reason) : std::nullopt;
    if (!number) {
        throw RecipeFailure(reason);
    }
    CheckNumber(*number, kind, formula);
    return *number;
}

Point3 Point(
    const std::array<std::string, 3>& formulas, NumberKind kind, const Connector& connector, const Scope& scope)
{
    return {Number(formulas[0], kind, connector, scope), Number(formulas[1], kind, connector, scope),
        Number(formulas[2], kind, connector, scope)};
}

ConnectorShape ShapeOf(const std::string& name)
{
    if (name == "rectangular") {
        return ConnectorShape::Rectangular;
    }
    if (name == "oval") {
        return ConnectorShape::Oval;
    }
    return name == "cable" ? ConnectorShape::Cable : ConnectorShape::Round;
}

ConnectorMark Make(const Connector& connector, const Scope& scope)
{
    ConnectorMark mark;
    mark.position = Point(connector.position, NumberKind::Coordinate, connector, scope);
    const Point3 direction = Point(connector.direction, NumberKind::Component, connector, scope);
    if (Length(direction) < 1e-9) {
        throw RecipeFailure("geometry.out-of-range", "The connector has no direction", "连接件没有方向");
    }
    mark.direction = Normalised(direction);
    mark.shape = ShapeOf(connector.shape);
    if (!connector.size.empty()) {
        mark.width = Number(connector.size.front(), NumberKind::Length, connector, scope);
        mark.height = Number(connector.size.back(), NumberKind::Length, connector, scope);
    }
    return mark;
}

} // namespace

ConnectorMark MakeConnector(const Connector& connector, const Scope& scope)
{
    try {
        return Make(connector, scope);
    } catch (const RecipeFailure& failure) {
        Reason reason = failure.Why();
        reason.subject = connector.name;
        reason.english = "Connector " + connector.name + ": " + reason.english;
        reason.chinese = "连接件 " + connector.name + "：" + reason.chinese;
        throw RecipeFailure(reason);
    }
}

} // namespace familyfiles
