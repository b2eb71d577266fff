#pragma once

#include "TarnNuqServiceExport.h"
#include "zept/IDocument.h"

#include <QMetaType>
#include <QObject>

namespace zept {
class IDocumentEventArgs;
}

namespace tarnnuq {

/// Turns the host's document events into signals and tells which document is current.
///
/// Keeps no list of documents and owns none: the pointers are the host's, valid as long as the host says. It does not
/// register itself anywhere: the host's own event handler calls HandleDocumentEvent(). One instance a process, used on
/// the GUI thread.
class TARNNUQSERVICE_EXPORT DocumentService : public QObject
{
    Q_OBJECT

public:
    /// @return the single instance, made on the first call and never destroyed
    static DocumentService* Get();

    /// Announces a document event of the host: receivers that are connected directly have run when this returns.
    /// @param args the event, read during the call alone; null and other events than those of the signals are
    /// ignored
    void HandleDocumentEvent(zept::IDocumentEventArgs* args);

    /// @return the document in the host's active window; null when none is open or the host has no windows
    zept::IDocument* GetCurrentDocument() const;

    // Hosts connect by index, too: the order of these three is fixed.
Q_SIGNALS:
    /// A new document was made.
    /// @param document the host's, as the event names it; may be null
    void DocumentCreated(zept::IDocument* document);
    /// A document was closed.
    /// @param document the host's, as the event names it; may be null
    void DocumentClosed(zept::IDocument* document);
    /// A document was opened.
    /// @param document the host's, as the event names it; may be null
    void DocumentOpened(zept::IDocument* document);

private:
    friend class DocumentServiceAccess; // the seam for tests

    explicit DocumentService(QObject* parent);
    ~DocumentService() override;

    static DocumentService* s_pInstance;
};

} // namespace tarnnuq

Q_DECLARE_METATYPE(zept::IDocument*)
