#include "Commands/PublicCategoryRequest.h"

#include "CategorySvcs/PublicCategoryService.h"

#include <QEventLoop>
#include <QTimer>

namespace nuq {

using tarnnuq::ICategory;
using tarnnuq::PublicCategoryService;

ServiceAnswer AskPublicCategoryService(
    Session& session, const QString& keyword, componentlibrary::CategoryTree::Categories& categories)
{
    ServiceAnswer answer = ServiceAnswer::TimedOut;
    QEventLoop loop;
    const auto take = [&](const QList<ICategory>& received) {
        for (const ICategory& category : received)
            categories.push_back(std::make_shared<ICategory>(category));
        answer = received.isEmpty() ? ServiceAnswer::Nothing : ServiceAnswer::Categories;
        loop.quit();
    };
    QObject::connect(PublicCategoryService::Get(), &PublicCategoryService::OnCategoriesUpdated, &loop, take);
    QObject::connect(&session.Interrupt(), &Interruption::Happened, &loop, [&] {
        answer = ServiceAnswer::Interrupted;
        loop.quit();
    });
    QTimer::singleShot(session.Options().timeout * 1000, &loop, &QEventLoop::quit);
    PublicCategoryService::Get()->RequestCategories(keyword);
    if (answer == ServiceAnswer::TimedOut)
        loop.exec();
    return answer;
}

} // namespace nuq
