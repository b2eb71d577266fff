#include "ComponentDatabase/Schema/Migration.h"

#include "ComponentDatabase/Schema/SchemaSteps.h"
#include "ComponentDatabase/Sql/Transaction.h"

namespace componentdatabase {

namespace {

void RunStep(const Connection& connection, const SchemaStep& step)
{
    for (const QString& statement : step.statements) {
        connection.Run(statement);
    }
    if (step.fill != nullptr) {
        step.fill(connection);
    }
}

} // namespace

int LatestVersion()
{
    return static_cast<int>(SchemaSteps().size());
}

int VersionOf(const Connection& connection)
{
    return static_cast<int>(connection.Number(QStringLiteral("PRAGMA user_version")));
}

void Migrate(const Connection& connection, int target)
{
    while (VersionOf(connection) < target) {
        Transaction transaction(connection);
        // Another process may have been quicker while this one waited for the lock.
        const int version = VersionOf(connection);
        if (version < target) {
            RunStep(connection, SchemaSteps().at(static_cast<std::size_t>(version)));
            connection.Run(QStringLiteral("PRAGMA user_version = %1").arg(version + 1));
        }
        transaction.Commit();
    }
}

} // namespace componentdatabase
