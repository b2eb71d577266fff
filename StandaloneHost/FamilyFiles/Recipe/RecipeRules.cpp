#include "FamilyFiles/Recipe/RecipeRules.h"

#include <algorithm>

namespace familyfiles {

namespace {

MemberRule Number(std::string_view name, NumberKind kind)
{
    return {name, MemberShape::Number, kind};
}

MemberRule Numbers(std::string_view name, std::size_t count, NumberKind kind)
{
    return {name, MemberShape::Numbers, kind, false, count};
}

MemberRule Plain(std::string_view name, MemberShape shape)
{
    return {name, shape};
}

MemberRule Object(std::string_view name, const ObjectRule& rule)
{
    return {name, MemberShape::Object, NumberKind::Length, false, 0, &rule};
}

MemberRule Required(MemberRule rule)
{
    rule.isRequired = true;
    return rule;
}

using Members = std::vector<MemberRule>;

Members operator+(Members one, const Members& other)
{
    one.insert(one.end(), other.begin(), other.end());
    return one;
}

const Members& PlaceMembers()
{
    static const Members members{Numbers("at", 3, NumberKind::Coordinate), Plain("axis", MemberShape::Axis),
        Number("turn", NumberKind::Turn), Plain("centred", MemberShape::Flag)};
    return members;
}

const Members& RoundMembers()
{
    static const Members members{Number("diameter", NumberKind::Length), Number("radius", NumberKind::Length)};
    return members;
}

const ObjectRule& PolarRule()
{
    static const ObjectRule rule{
        {}, {Required(Number("count", NumberKind::NoneCount)), Required(Number("diameter", NumberKind::Length)),
                Number("turn", NumberKind::Turn)}};
    return rule;
}

const ObjectRule& GridRule()
{
    static const ObjectRule rule{{},
        {Required(Numbers("count", 2, NumberKind::NoneCount)), Required(Numbers("step", 2, NumberKind::Coordinate))}};
    return rule;
}

const Members& AnyProfileMembers()
{
    static const Members members{Required(Plain("shape", MemberShape::Word)), Numbers("at", 2, NumberKind::Coordinate),
        Number("turn", NumberKind::Turn), Number("wall", NumberKind::NoneLength), Plain("holes", MemberShape::Profiles),
        Object("polar", PolarRule()), Object("grid", GridRule()), Plain("when", MemberShape::Condition)};
    return members;
}

const ObjectRule& BoltRule()
{
    static const ObjectRule rule{
        {}, {Required(Number("count", NumberKind::NoneCount)), Required(Number("circle", NumberKind::Length)),
                Required(Number("diameter", NumberKind::Length)), Number("turn", NumberKind::Turn)}};
    return rule;
}

const ObjectRule& RaisedFaceRule()
{
    static const ObjectRule rule{
        {}, {Required(Number("diameter", NumberKind::Length)), Required(Number("height", NumberKind::Length))}};
    return rule;
}

const ObjectRule& SectionRule()
{
    static const ObjectRule rule{
        {}, {Required(Plain("profile", MemberShape::Profile)), Numbers("at", 3, NumberKind::Coordinate),
                Plain("axis", MemberShape::Axis), Number("turn", NumberKind::Turn)}};
    return rule;
}

const ObjectRule& RotationRule()
{
    static const ObjectRule rule{
        {}, {Required(Plain("axis", MemberShape::Axis)), Required(Number("angle", NumberKind::Turn)),
                Numbers("at", 3, NumberKind::Coordinate)}};
    return rule;
}

MemberRule Sections()
{
    return {"sections", MemberShape::Objects, NumberKind::Length, true, 0, &SectionRule()};
}

std::vector<ObjectRule> MakeSolidOperations()
{
    const Members& place = PlaceMembers();
    const Members& round = RoundMembers();
    const MemberRule length = Required(Number("length", NumberKind::Length));
    const MemberRule profile = Required(Plain("profile", MemberShape::Profile));
    const MemberRule angle = Number("angle", NumberKind::Angle);
    return {
        {"box", place + Members{Required(Numbers("size", 3, NumberKind::Length)), Plain("corner", MemberShape::Flag),
                            Number("round", NumberKind::NoneLength)}},
        {"cylinder", place + round + Members{length, angle}},
        {"pipe",
            place + round + Members{length, Number("wall", NumberKind::Length), Number("bore", NumberKind::Length)}},
        {"cone", place + Members{length, Number("diameter", NumberKind::NoneLength),
                             Number("radius", NumberKind::NoneLength), Number("diameter2", NumberKind::NoneLength),
                             Number("radius2", NumberKind::NoneLength)}},
        {"sphere", place + round},
        {"dome", place + round + Members{Number("depth", NumberKind::Length)}},
        {"torus", place + round + Members{Required(Number("thickness", NumberKind::Length)), angle}},
        {"flange",
            place + Members{Required(Number("diameter", NumberKind::Length)),
                        Required(Number("thickness", NumberKind::Length)), Number("bore", NumberKind::NoneLength),
                        Object("bolts", BoltRule()), Object("face", RaisedFaceRule())}},
        {"extrude", place + Members{profile, length}},
        {"revolve", place + Members{profile, angle}},
        {"sweep", Members{profile, Required(Plain("path", MemberShape::SpacePoints)),
                      Number("bend", NumberKind::NoneLength), Number("turn", NumberKind::Turn)}},
        {"loft", Members{Sections(), Plain("axis", MemberShape::Axis), Plain("ruled", MemberShape::Flag)}},
    };
}

std::vector<ObjectRule> MakeCombiningOperations()
{
    const MemberRule of = Required(Plain("of", MemberShape::Step));
    const MemberRule count = Required(Number("count", NumberKind::Count));
    const MemberRule edges = Plain("edges", MemberShape::EdgeChoice);
    const MemberRule at = Numbers("at", 3, NumberKind::Coordinate);
    return {
        {"fuse", {Plain("of", MemberShape::Steps)}},
        {"cut", {Required(Plain("from", MemberShape::Step)), Required(Plain("tools", MemberShape::Steps))}},
        {"common", {Required(Plain("of", MemberShape::Steps))}},
        {"fillet", {of, Required(Number("radius", NumberKind::Length)), edges}},
        {"chamfer", {of, Required(Number("distance", NumberKind::Length)), edges}},
        {"mirror", {of, Required(Plain("plane", MemberShape::Axis)), at, Plain("keep", MemberShape::Flag)}},
        {"linearPattern", {of, count, Required(Numbers("step", 3, NumberKind::Coordinate)),
                              Number("count2", NumberKind::Count), Numbers("step2", 3, NumberKind::Coordinate)}},
        {"polarPattern", {of, count, at, Plain("axis", MemberShape::Axis), Number("angle", NumberKind::Angle)}},
        {"transform", {of, Number("scale", NumberKind::Factor), Object("rotate", RotationRule()),
                          Numbers("move", 3, NumberKind::Coordinate)}},
    };
}

std::vector<ObjectRule> MakeOperations()
{
    const Members any{Required(Plain("op", MemberShape::Word)), Plain("id", MemberShape::Word),
        Plain("when", MemberShape::Condition), Plain("color", MemberShape::Word), Plain("note", MemberShape::Word)};
    std::vector<ObjectRule> rules = MakeSolidOperations();
    const std::vector<ObjectRule> combining = MakeCombiningOperations();
    rules.insert(rules.end(), combining.begin(), combining.end());
    for (ObjectRule& rule : rules) {
        rule.members = any + rule.members;
    }
    return rules;
}

std::vector<ObjectRule> MakeProfileShapes()
{
    const Members& any = AnyProfileMembers();
    const Members sides{Required(Number("width", NumberKind::Length)), Required(Number("height", NumberKind::Length))};
    return {
        {"rectangle", any + sides + Members{Number("round", NumberKind::NoneLength)}},
        {"circle", any + RoundMembers()},
        {"ellipse", any + sides},
        {"oval", any + sides},
        {"regular", any + Members{Required(Number("sides", NumberKind::Count)),
                              Required(Number("across", NumberKind::Length))}},
        {"polygon", any + Members{Required(Plain("points", MemberShape::PlanePoints))}},
    };
}

const ObjectRule* FindIn(const std::vector<ObjectRule>& rules, std::string_view name)
{
    const auto found =
        std::find_if(rules.begin(), rules.end(), [name](const ObjectRule& rule) { return rule.name == name; });
    return found == rules.end() ? nullptr : &*found;
}

} // namespace

const ObjectRule* FindOperation(std::string_view name)
{
    static const std::vector<ObjectRule> rules = MakeOperations();
    return FindIn(rules, name);
}

const ObjectRule* FindProfileShape(std::string_view name)
{
    static const std::vector<ObjectRule> rules = MakeProfileShapes();
    return FindIn(rules, name);
}

const ObjectRule& CentreLineRule()
{
    static const ObjectRule rule{
        {}, {Numbers("from", 3, NumberKind::Coordinate), Numbers("to", 3, NumberKind::Coordinate),
                Numbers("at", 3, NumberKind::Coordinate), Plain("axis", MemberShape::Axis),
                Number("length", NumberKind::Length), Number("diameter", NumberKind::Length),
                Plain("when", MemberShape::Condition)}};
    return rule;
}

const ObjectRule& EdgeFilterRule()
{
    static const ObjectRule rule{
        {}, {Plain("along", MemberShape::Axis), Plain("kind", MemberShape::Word), Plain("plane", MemberShape::Axis),
                Number("offset", NumberKind::Coordinate), Plain("inside", MemberShape::Box)}};
    return rule;
}

} // namespace familyfiles
