#include "Components/ComponentStream.h"

#include "Errors/AddressText.h"

#include <QTimer>

namespace componentlibrary {

ComponentStream::ComponentStream(Catalogue& catalogue, const ComponentQuery& query, QObject* parent)
    : QObject(parent), m_catalogue(catalogue), m_query(query), m_received((query.page - 1) * query.pageSize)
{
    Load(m_query.page);
}

ComponentStream::~ComponentStream() = default;

void ComponentStream::Load(int page)
{
    m_query.page = page;
    m_request = m_catalogue.ComponentPage(m_query);
    connect(m_request.get(), &RequestBase::Retrying, this, &ComponentStream::Retrying);
    connect(m_request.get(), &RequestBase::Finished, this, &ComponentStream::OnLoaded);
    m_request->Start();
}

void ComponentStream::Next()
{
    if (m_hasEnded)
        return;
    m_isWanted = true;
    if (m_isLast)
        QTimer::singleShot(0, this, &ComponentStream::End);
    else if (m_request->HasEnded())
        QTimer::singleShot(0, this, &ComponentStream::OnLoaded);
}

void ComponentStream::Cancel()
{
    if (m_hasEnded)
        return;
    if (m_request->HasEnded())
        return Fail(MakeError(ErrorCode::Cancelled));
    m_isWanted = true;
    m_request->Cancel();
}

void ComponentStream::OnLoaded()
{
    if (m_hasEnded || !m_isWanted || m_isLast || !m_request->HasEnded())
        return;
    m_isWanted = false;
    if (m_request->Error().IsError())
        return Fail(m_request->Error());
    Accept(m_request->TakeResult());
}

void ComponentStream::Accept(ComponentPageRequest::ResultType page)
{
    m_summary.hasChanged |= m_hasTotal && page.TotalCount != m_summary.totalCount;
    m_summary.totalCount = page.TotalCount;
    m_hasTotal = true;
    const int received = static_cast<int>(page.List.size());
    m_received += received;
    m_page.clear();
    m_window.BeginPage();
    for (auto& component : page.List) {
        if (m_window.Add(component->Id))
            m_page.push_back(std::move(component));
    }
    m_summary.delivered += static_cast<int>(m_page.size());
    JudgeEnd(received);
    if (m_isLast && m_page.empty())
        return End();
    if (!m_isLast) {
        // The finished request is the sender of this call: it goes when control is back in the event loop.
        m_request.release()->deleteLater();
        Load(m_query.page + 1);
    }
    emit PageReady();
}

/// A short page ends the list. Before the announced total it is an error, unless the total itself moved meanwhile.
void ComponentStream::JudgeEnd(int received)
{
    const bool isAll = m_received >= m_summary.totalCount;
    m_isLast = isAll || received < m_query.pageSize;
    if (m_isLast && !isAll && !m_summary.hasChanged)
        m_error = MakeError(ErrorCode::ServerIncompleteList);
}

ErrorInfo ComponentStream::MakeError(ErrorCode code) const
{
    ErrorInfo error;
    error.code = code;
    error.operation = Operation::LoadComponents;
    error.address = AddressText(m_request->Address());
    error.httpStatus = code == ErrorCode::ServerIncompleteList ? 200 : 0;
    error.evidence << QStringLiteral("announced: %1").arg(m_summary.totalCount)
                   << QStringLiteral("received: %1").arg(m_received);
    return error;
}

void ComponentStream::Fail(const ErrorInfo& error)
{
    m_error = error;
    End();
}

void ComponentStream::End()
{
    if (m_hasEnded)
        return;
    m_hasEnded = true;
    emit Finished();
}

} // namespace componentlibrary
