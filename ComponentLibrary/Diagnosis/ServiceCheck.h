#pragma once

#include "Diagnosis/Finding.h"
#include "Requests/Catalogue.h"

#include <QElapsedTimer>
#include <QObject>

#include <memory>

class QHostInfo;

namespace componentlibrary {

class ImageProbe;

/**
 * Checks the way to the service step by step: host name, connection, encryption, sign-in, answer, clock, thumbnails.
 *
 * A step that cannot be checked because an earlier one failed is reported as skipped, so that one fault shows as one
 * fault. Ends once; nothing is changed on the server. Owned by whoever made it.
 */
class ServiceCheck : public QObject
{
    Q_OBJECT

public:
    /** @param catalogue its requests are sent once, without repetition; must outlive the check */
    explicit ServiceCheck(Catalogue& catalogue, QObject* parent = nullptr);
    ~ServiceCheck() override;

    void Start();

    /** The findings in a fixed order; complete after Finished. */
    const Findings& Result() const { return m_findings; }

signals:
    /** A step was done. */
    void Found(const QString& check);

    /** All steps were done or skipped. */
    void Finished();

private:
    void LookUpName();
    void OnName(const QHostInfo& info);
    void AskService();
    void OnService();
    void JudgeConnection(const ErrorInfo& error);
    void JudgeEncryption(const ErrorInfo& error);
    void JudgeSignIn(const ErrorInfo& error);
    void JudgeAnswer(const ErrorInfo& error);
    void JudgeClock();
    void AskComponent();
    void OnComponent();
    void OnThumbnail();
    void Add(const char* check, Verdict verdict, const QString& text, const QString& hint = QString());
    void AddError(const char* check, const ErrorInfo& error);
    void SkipRest();
    void SkipRest(const QString& reason);

    Catalogue& m_catalogue;
    QUrl m_address;
    std::unique_ptr<ProjectsRequest> m_service;
    std::unique_ptr<ComponentPageRequest> m_component;
    std::unique_ptr<ImageProbe> m_thumbnail;
    QElapsedTimer m_sinceStep;
    Findings m_findings;
    bool m_hasEnded = false;
};

} // namespace componentlibrary
