#include "Stage.h"

#include "BestEffort.h"
#include "TreeOperations.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <QUuid>

namespace vornel {

Stage::Stage(FileSystem &files, const std::filesystem::path &staging)
    : m_files(&files), m_path(staging / pathFromText(uuidText(QUuid::createUuid())))
{}

Stage::~Stage()
{
    if (m_files != nullptr)
        bestEffort([this] { removeTree(*m_files, m_path); });
}

} // namespace vornel
