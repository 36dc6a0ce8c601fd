#include "ErrorMessage.h"

#include "SerializedForms.h"

#include <filesystem>
#include <system_error>

namespace vornel {

namespace {

QString sentence(const std::error_code &code)
{
    if (code.category() != std::system_category() && code.category() != std::generic_category())
        return QString::fromStdString(code.message());
    switch (static_cast<std::errc>(code.value())) {
    case std::errc::permission_denied:
    case std::errc::operation_not_permitted:
        return QStringLiteral("Accès refusé");
    case std::errc::read_only_file_system:
        return QStringLiteral("Le volume est en lecture seule");
    case std::errc::no_space_on_device:
        return QStringLiteral("Le volume est plein");
    case std::errc::no_such_file_or_directory:
        return QStringLiteral("Fichier ou dossier introuvable");
    case std::errc::not_a_directory:
        return QStringLiteral("Ce n’est pas un dossier");
    case std::errc::is_a_directory:
        return QStringLiteral("C’est un dossier");
    case std::errc::file_exists:
    case std::errc::directory_not_empty:
        return QStringLiteral("Un élément existe déjà à cet endroit");
    case std::errc::filename_too_long:
        return QStringLiteral("Le nom est trop long");
    case std::errc::file_too_large:
        return QStringLiteral("Le fichier est trop volumineux");
    case std::errc::too_many_files_open:
    case std::errc::too_many_files_open_in_system:
        return QStringLiteral("Trop de fichiers sont ouverts");
    case std::errc::too_many_symbolic_link_levels:
        return QStringLiteral("Trop de liens symboliques");
    case std::errc::invalid_argument:
    case std::errc::invalid_seek:
    case std::errc::no_such_device_or_address:
        return QStringLiteral("Ce n’est pas un fichier ordinaire");
    case std::errc::illegal_byte_sequence:
        return QStringLiteral("Le texte n’est pas de l’UTF-8 valide");
    case std::errc::device_or_resource_busy:
        return QStringLiteral("L’élément est utilisé par un autre programme");
    case std::errc::io_error:
        return QStringLiteral("Erreur d’entrée-sortie");
    default:
        return QString::fromStdString(code.message());
    }
}

} // namespace

QString errorMessage(const std::exception &error)
{
    if (const auto *file = dynamic_cast<const std::filesystem::filesystem_error *>(&error);
        file != nullptr && !file->path1().empty())
        return sentence(file->code()) + u"\u00A0: " + pathText(file->path1());
    if (const auto *system = dynamic_cast<const std::system_error *>(&error))
        return sentence(system->code());
    return QString::fromUtf8(error.what());
}

} // namespace vornel
