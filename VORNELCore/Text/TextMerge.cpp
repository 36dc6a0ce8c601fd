#include "TextMerge.h"

#include "GitLibrary.h"
#include "IsText.h"

#include <VORNELCore/Records/ImportModels.h>

#include <stdexcept>

namespace vornel {

namespace {

/// The time that lines take that are much alike grows faster than their number.
constexpr qsizetype mostLines = 200'000;

git_merge_file_input inputOf(QByteArrayView text)
{
    git_merge_file_input input{};
    git_merge_file_init_input(&input, GIT_MERGE_FILE_INPUT_VERSION);
    input.ptr = text.data();
    input.size = static_cast<size_t>(text.size());
    return input;
}

} // namespace

std::optional<MergedText> mergeTexts(QByteArrayView base, QByteArrayView claude, QByteArrayView codex)
{
    if (!isText(base) || !isText(claude) || !isText(codex))
        return std::nullopt;
    if (base.count('\n') + claude.count('\n') + codex.count('\n') > mostLines)
        return std::nullopt;

    static const GitLibrary library;
    const QByteArray ours = assistantName(TargetKind::claude).toUtf8();
    const QByteArray theirs = assistantName(TargetKind::codex).toUtf8();
    git_merge_file_options options{};
    git_merge_file_options_init(&options, GIT_MERGE_FILE_OPTIONS_VERSION);
    options.our_label = ours.constData();
    options.their_label = theirs.constData();
    const git_merge_file_input ancestor = inputOf(base);
    const git_merge_file_input ourSide = inputOf(claude);
    const git_merge_file_input theirSide = inputOf(codex);
    git_merge_file_result result{};
    if (git_merge_file(&result, &ancestor, &ourSide, &theirSide, &options) != 0)
        throw std::runtime_error("Les deux textes ne peuvent pas être fusionnés.");
    MergedText merged{QByteArray(result.ptr, static_cast<qsizetype>(result.len)), result.automergeable != 0};
    git_merge_file_result_free(&result);
    return merged;
}

} // namespace vornel
