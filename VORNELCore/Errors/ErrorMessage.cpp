#include "ErrorMessage.h"

#include "FailurePlace.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

QString sentence(const std::error_code &code)
{
    if (code.category() != std::system_category() && code.category() != std::generic_category())
        return QString::fromStdString(code.message());
    if (code.value() == EDQUOT)
        return u"Le quota de disque est atteint"_s;
    switch (static_cast<std::errc>(code.value())) {
    case std::errc::permission_denied:
    case std::errc::operation_not_permitted:
        return u"Accès refusé"_s;
    case std::errc::read_only_file_system:
        return u"Le volume est en lecture seule"_s;
    case std::errc::no_space_on_device:
        return u"Le volume est plein"_s;
    case std::errc::no_such_file_or_directory:
        return u"Fichier ou dossier introuvable"_s;
    case std::errc::not_a_directory:
        return u"Ce n’est pas un dossier"_s;
    case std::errc::is_a_directory:
        return u"C’est un dossier"_s;
    case std::errc::file_exists:
    case std::errc::directory_not_empty:
        return u"Un élément existe déjà à cet endroit"_s;
    case std::errc::filename_too_long:
        return u"Le nom est trop long"_s;
    case std::errc::file_too_large:
        return u"Le fichier est trop volumineux"_s;
    case std::errc::too_many_files_open:
    case std::errc::too_many_files_open_in_system:
        return u"Trop de fichiers sont ouverts"_s;
    case std::errc::too_many_symbolic_link_levels:
        return u"Trop de liens symboliques"_s;
    case std::errc::not_supported:
    case std::errc::no_such_device_or_address:
        return u"Ce n’est pas un fichier ordinaire"_s;
    case std::errc::illegal_byte_sequence:
        return u"Le texte n’est pas de l’UTF-8 valide"_s;
    case std::errc::device_or_resource_busy:
        return u"L’élément est utilisé par un autre programme"_s;
    case std::errc::io_error:
        return u"Erreur d’entrée-sortie"_s;
    default:
        return u"Erreur du système de fichiers "_s + QString::number(code.value());
    }
}

QString sentence(const std::exception &error)
{
    if (const auto *file = dynamic_cast<const fs::filesystem_error *>(&error);
        file != nullptr && !file->path1().empty())
        return sentence(file->code()) + u"\u00A0: "_s + pathText(file->path1());
    if (const auto *system = dynamic_cast<const std::system_error *>(&error))
        return sentence(system->code());
    return QString::fromUtf8(error.what());
}

} // namespace

QString errorMessage(const std::exception &error)
{
    const auto *place = dynamic_cast<const FailurePlace *>(&error);
    return place == nullptr ? sentence(error) : sentence(error) + u'\n' + place->sentence();
}

QString errorMessage(const std::exception_ptr &error)
try {
    std::rethrow_exception(error);
} catch (const std::exception &known) {
    return errorMessage(known);
}

fs::path failedFolder(const std::exception &error)
{
    if (const auto *place = dynamic_cast<const FailurePlace *>(&error);
        place != nullptr && !place->folder().empty())
        return place->folder();
    if (const auto *file = dynamic_cast<const fs::filesystem_error *>(&error))
        return file->path1().parent_path();
    return {};
}

} // namespace vornel
