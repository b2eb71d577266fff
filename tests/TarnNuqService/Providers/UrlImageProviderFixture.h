#pragma once

#include "TarnNuqService/Providers/ProviderFixture.h"
#include "TarnNuqService/Providers/UrlImageProviderAccess.h"

#include <vector>

namespace testsupport {

/// A provider of images by URL, and its answers.
class UrlImageProviderFixture : public ProviderFixture
{
protected:
    struct Answer
    {
        std::wstring url;
        std::shared_ptr<QImage> image;
    };

    UrlImageProviderFixture()
    {
        QObject::connect(provider.get(), &tarnnuq::UrlImageProvider::OnProvided,
            [this](const std::wstring& url, const std::shared_ptr<QImage>& image) {
                answers.push_back({url, image});
            });
    }

    bool WaitForAnswers(std::size_t count)
    {
        return WaitFor([this, count] { return answers.size() >= count; });
    }

    /// Asks for an image and waits for its one answer.
    std::shared_ptr<QImage> Provide(const std::wstring& url)
    {
        const std::size_t before = answers.size();
        provider->Provide(url);
        EXPECT_TRUE(WaitForAnswers(before + 1));
        EXPECT_EQ(answers.size(), before + 1);
        EXPECT_EQ(answers.back().url, url);
        return answers.back().image;
    }

    /// Has a target answered with this, and asks for it.
    std::shared_ptr<QImage> Provide(const QString& target, const ScriptedResponse& response)
    {
        server.On(target.toLatin1(), response);
        return Provide(Url(target));
    }

    /// Runs until something that was sent after everything else has come back: what has not happened by then never
    /// will.
    void RunPastEverything()
    {
        server.On("/last", ScriptedResponse::Status(404));
        tarnnuq::UrlImageProvider other(nullptr);
        bool answered = false;
        QObject::connect(&other, &tarnnuq::UrlImageProvider::OnProvided, [&answered] { answered = true; });
        other.Provide(Url(QStringLiteral("/last")));
        EXPECT_TRUE(WaitFor([&answered] { return answered; }));
    }

    std::unique_ptr<tarnnuq::UrlImageProvider> provider = std::make_unique<tarnnuq::UrlImageProvider>(nullptr);
    std::vector<Answer> answers;
};

} // namespace testsupport
