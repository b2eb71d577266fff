#include "Commands/StreamRun.h"

#include "Commands/Texts.h"
#include "Output/Terminal.h"

#include <QEventLoop>

namespace nuq {

using componentlibrary::ComponentStream;

void RunStream(
    Session& session, ComponentStream& stream, const std::function<void(const ComponentStream::Page&)>& takePage)
{
    // Rows on the same terminal would tear the progress line apart.
    ProgressLine progress(session.Error(), session.ShowsProgress() && !IsTerminal(nuq::Stream::Output));
    QEventLoop loop;
    QObject::connect(&stream, &ComponentStream::Finished, &loop, &QEventLoop::quit);
    QObject::connect(&session.Interrupt(), &Interruption::Happened, &stream, &ComponentStream::Cancel);
    QObject::connect(&stream, &ComponentStream::PageReady, &loop, [&] {
        takePage(stream.TakePage());
        progress.Show(Say(QT_TRANSLATE_NOOP("Messages", "%1 of %2 components ..."))
                          .arg(stream.Summary().delivered)
                          .arg(stream.Summary().totalCount));
        if (session.Out().IsClosed() || Interruption::HasHappened())
            stream.Cancel();
        else
            stream.Next();
    });
    stream.Next();
    if (!stream.HasEnded())
        loop.exec();
}

} // namespace nuq
