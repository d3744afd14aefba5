#include "core/base/SystemReason.hpp"

#include "core/base/Localization.hpp"

#include <cerrno>
#include <system_error>

namespace vantello {

std::string systemReason(int systemError) {
    switch (systemError) {
        case EACCES:
        case EPERM: return L10n::tr("permesso negato");
        case ENOENT: return L10n::tr("file o cartella inesistente");
        case EISDIR: return L10n::tr("è una cartella");
        case ENOTDIR: return L10n::tr("una parte del percorso non è una cartella");
        case ENOSPC:
        case EDQUOT: return L10n::tr("disco pieno");
        case EROFS: return L10n::tr("file system di sola lettura");
        case EEXIST: return L10n::tr("esiste già");
        case ENAMETOOLONG: return L10n::tr("nome troppo lungo");
        case EMFILE:
        case ENFILE: return L10n::tr("troppi file aperti");
        default: return std::generic_category().message(systemError);
    }
}

}  // namespace vantello
