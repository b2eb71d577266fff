#include "ProjectSvcs/DocumentService.h"

#include "zept/IDocumentEventArgs.h"
#include "zept/IUiDocument.h"
#include "zept/IUiDocumentViewManager.h"

namespace tarnnuq {

namespace {

enum DocumentEvent
{
    Created = 0,
    Opened = 1,
    Closed = 5
};

} // namespace

DocumentService* DocumentService::s_pInstance = nullptr;

DocumentService* DocumentService::Get()
{
    if (!s_pInstance) {
        s_pInstance = new DocumentService(nullptr);
    }
    return s_pInstance;
}

DocumentService::DocumentService(QObject* parent) : QObject(parent)
{
    // By the name in the signals' signatures, so that queued connections and signal spies can copy the pointer.
    qRegisterMetaType<zept::IDocument*>("zept::IDocument*");
}

DocumentService::~DocumentService() = default;

void DocumentService::HandleDocumentEvent(zept::IDocumentEventArgs* args)
{
    if (!args) {
        return;
    }
    switch (args->GetEventType()) {
    case Created:
        Q_EMIT DocumentCreated(args->GetDocument());
        break;
    case Opened:
        Q_EMIT DocumentOpened(args->GetDocument());
        break;
    case Closed:
        Q_EMIT DocumentClosed(args->GetDocument());
        break;
    default:
        break;
    }
}

zept::IDocument* DocumentService::GetCurrentDocument() const
{
    const zept::IUiDocumentViewManager* manager = zept::IUiDocumentViewManager::Get();
    const zept::IUiDocument* document = manager ? manager->GetCurrentUiDocument() : nullptr;
    return document ? document->GetDocument() : nullptr;
}

} // namespace tarnnuq
