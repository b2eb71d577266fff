#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace tarnnuq {
class ISpecification;
}

namespace componentlibrary {

/** What was read from a file with specifications: some, or why there are none. */
struct SpecificationFile
{
    using Specifications = std::vector<std::shared_ptr<tarnnuq::ISpecification>>;
    /** The id of the parameter of that name, empty when there is none. */
    using IdLookup = std::function<QString(const QString& name)>;

    static constexpr int LargestSize = 16 * 1024 * 1024;

    Specifications specifications;
    QString fault; ///< one sentence in the user's language; empty when all is well

    /**
     * Reads specifications that a person has written ({"name": ..., "values": {NAME: VALUE}}) or that "nuq
     * specifications --json" has ("parameters" with id and value), one or a list of them. Values may be texts, numbers
     * and yes/no; parameters whose value was not given are left out, so that the family's own value stands.
     */
    static SpecificationFile Parse(const QByteArray& json, const IdLookup& idOf);

    /** The same from a file. */
    static SpecificationFile Read(const QString& path, const IdLookup& idOf);
};

} // namespace componentlibrary
