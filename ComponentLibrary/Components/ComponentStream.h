#pragma once

#include "Components/PageWindow.h"
#include "Errors/ErrorInfo.h"
#include "Records/IProjectComponent.h"
#include "Requests/Catalogue.h"
#include "Requests/ComponentQuery.h"

#include <QObject>

#include <memory>
#include <vector>

namespace componentlibrary {

/** What a listing of all pages has seen so far. */
struct StreamSummary
{
    int delivered = 0;       ///< components handed out, each once
    int totalCount = 0;      ///< as the service gave it with the last page
    bool hasChanged = false; ///< the total changed between two pages: the list may have gaps; list again to be sure
};

/**
 * Lists every component of a query page by page, with the memory of a page.
 *
 * While the receiver works on a page, the next one is already on its way; the one after that is not asked for before
 * the receiver takes the next. A component that moves to a later page meanwhile is handed out once. It ends exactly
 * once: complete, with an error (the pages before it were right), or cancelled. Owned by whoever made it.
 */
class ComponentStream : public QObject
{
    Q_OBJECT

public:
    using Page = std::vector<std::shared_ptr<tarnnuq::IProjectComponent>>;

    /** @param query its page is where the listing begins. @param catalogue must outlive the stream */
    ComponentStream(Catalogue& catalogue, const ComponentQuery& query, QObject* parent = nullptr);
    ~ComponentStream() override;

    /** Ask for the next page, the first one too; PageReady or Finished follows from the event loop. One at a time. */
    void Next();

    /** End now; Finished is emitted inside this call. Nothing once it has ended. */
    void Cancel();

    /** The components of the page just announced; they may be moved away. Valid until Next(). */
    Page TakePage() { return std::move(m_page); }

    const StreamSummary& Summary() const { return m_summary; }

    /** The error after Finished; ErrorCode::None when the list is complete. */
    const ErrorInfo& Error() const { return m_error; }
    bool HasEnded() const { return m_hasEnded; }

signals:
    /** A page is there; take it, then call Next(). */
    void PageReady();

    /** The one end. */
    void Finished();

    /** A passing fault, see RequestBase::Retrying. */
    void Retrying(int next, int milliseconds);

private:
    void Load(int page);
    void OnLoaded();
    void Accept(ComponentPageRequest::ResultType page);
    void JudgeEnd(int received);
    ErrorInfo MakeError(ErrorCode code) const;
    void Fail(const ErrorInfo& error);
    void End();

    Catalogue& m_catalogue;
    ComponentQuery m_query;
    std::unique_ptr<ComponentPageRequest> m_request;
    PageWindow m_window;
    Page m_page;
    StreamSummary m_summary;
    ErrorInfo m_error;
    int m_received = 0;
    bool m_isWanted = false;
    bool m_isLast = false;
    bool m_hasTotal = false;
    bool m_hasEnded = false;
};

} // namespace componentlibrary
