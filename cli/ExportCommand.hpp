#pragma once
// "vantello-cli export": the movements of one month, or all of them, as a CSV file that a
// spreadsheet opens directly, the way the application's "Esporta il mese in CSV…" writes it.

#include <ostream>
#include <string>
#include <vector>

namespace vantello::cli {

inline constexpr const char* exportUsage =
    "Uso: vantello-cli export (--month AAAA-MM | --all) [--locale it|en] [--output FILE] [--data-dir CARTELLA]\n"
    "\n"
    "Scrive i movimenti in CSV, dal più vecchio: data, tipo, categoria, importo, nota.\n"
    "\n"
    "  --month AAAA-MM      i movimenti di quel mese (nel fuso orario del sistema)\n"
    "  --all                tutti i movimenti\n"
    "  --locale it|en       it: virgola decimale e colonne separate da ; (predefinito);\n"
    "                       en: punto decimale e colonne separate da ,\n"
    "  --output FILE        scrive il file invece di stamparlo\n"
    "  --data-dir CARTELLA  usa questa cartella invece di quella dell'applicazione\n";

// `arguments` are those after "export". Exit status: 0 written, 1 unreadable ledger or
// unwritable file, 2 bad options.
int runExport(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace vantello::cli
