#include "LocalDrafts.h"

#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Workspace/Configuration.h>

namespace vornel {

LocalDrafts::LocalDrafts(std::shared_ptr<FileSystem> files, const std::filesystem::path &workspace)
    : m_files(std::move(files)),
      m_drafts(*m_files, Configuration{standardizedPath(workspace), {}, {}}.bookkeeping())
{
    m_files->confine({standardizedPath(workspace)});
}

template <typename Operation>
auto LocalDrafts::perform(Operation operation)
{
    using Result = std::invoke_result_t<Operation, SkillDrafts &>;
    return m_executor.submit<Result>(
        [this, operation = std::move(operation)](QPromise<Result> &) { return operation(m_drafts); });
}

QFuture<void> LocalDrafts::keepDraft(QUuid id, UnsavedText text)
{
    return perform([id, text = std::move(text)](SkillDrafts &drafts) { drafts.keep(id, text); });
}

QFuture<std::optional<KeptDraft>> LocalDrafts::draft(QUuid id)
{
    return perform([=](SkillDrafts &drafts) { return drafts.read(id); });
}

QFuture<void> LocalDrafts::discardDraft(QUuid id)
{
    return perform([=](SkillDrafts &drafts) { drafts.discard(id); });
}

QFuture<QList<DraftFile>> LocalDrafts::files()
{
    return perform([](SkillDrafts &drafts) { return drafts.list(); });
}

QFuture<void> LocalDrafts::discardFile(DraftFile file)
{
    return perform([file = std::move(file)](SkillDrafts &drafts) { drafts.remove(file); });
}

} // namespace vornel
