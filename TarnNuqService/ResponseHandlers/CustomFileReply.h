#pragma once

#include "ResponseHandlers/CustomReplyBase.h"

namespace tarnnuq {

/// A pending reply whose body is saved to a file.
///
/// A transport or HTTP error leaves the file untouched. A file that cannot be opened ends with the error "fail to open
/// file to write.", one that cannot be written in full (a full disk, say) with "error on saving file."; what was
/// written of it stays as it is.
class TARNNUQSERVICE_EXPORT CustomFileReply : public CustomReplyBase
{
public:
    /// @param parent the Qt parent; null leaves the ownership with the caller
    explicit CustomFileReply(QObject* parent = nullptr);
    ~CustomFileReply() override;

    /// @param path where the body is saved; an existing file is replaced
    void SetSaveFilePath(const std::wstring& path);

    /// @return a copy of the path
    std::wstring GetSaveFilePath() const;

protected:
    void PrivateHandleReply() override;

private:
    bool ReportRequestError();
    void SaveBody();

    std::wstring m_saveFilePath;
};

} // namespace tarnnuq
