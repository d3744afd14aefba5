#include "core/statements/CAMTReader.hpp"

#include "core/base/Localization.hpp"
#include "core/base/Text.hpp"
#include "core/statements/StatementRecord.hpp"

#include <expat.h>

#include <memory>
#include <tuple>
#include <type_traits>
#include <string>

namespace vantello {

namespace {

std::string_view localName(const XML_Char* name) {
    const std::string_view full(name);
    const std::size_t colon = full.rfind(':');
    return colon == std::string_view::npos ? full : full.substr(colon + 1);
}

std::optional<CivilDate> isoDay(std::string_view text) {
    int year = 0, month = 0, day = 0;
    if (text.size() < 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
    for (const auto& [from, length, value] :
         {std::tuple{0, 4, &year}, std::tuple{5, 2, &month}, std::tuple{8, 2, &day}}) {
        for (int i = from; i < from + length; ++i) {
            const char c = text[static_cast<std::size_t>(i)];
            if (c < '0' || c > '9') return std::nullopt;
            *value = *value * 10 + (c - '0');
        }
    }
    return CivilDate{year, month, day};
}

void appendWithSpace(std::string& to, std::string_view text) {
    if (text.empty()) return;
    if (!to.empty()) to.push_back(' ');
    to.append(text);
}

// What is gathered of one entry while its elements stream past.
struct Entry {
    StatementRecord record;
    std::string currency;
    std::string indicator;
    std::string status;
    std::string bookingDay;
    std::string valueDay;
    std::string entryReference;
    std::string transactionReference;
    std::string debtor;
    std::string creditor;
    std::string remittance;
    std::string additional;
};

class CAMTWalk {
public:
    explicit CAMTWalk(const Calendar& calendar) : calendar_(calendar) {}

    XML_Parser parser = nullptr;

    void start(std::string_view name, const XML_Char** attributes) {
        path_.emplace_back(name);
        text_.clear();
        if (name == "Ntry") {
            entry_ = Entry{};
            entry_.record.line = static_cast<int>(XML_GetCurrentLineNumber(parser));
            entryDepth_ = path_.size();
        }
        if (name == "Amt") {
            for (const XML_Char** attribute = attributes; *attribute; attribute += 2) {
                if (localName(attribute[0]) == "Ccy") currency_ = attribute[1];
            }
        }
    }

    void text(const XML_Char* characters, int length) { text_.append(characters, static_cast<std::size_t>(length)); }

    void end() {
        const std::string value(Text::trimmedView(text_));
        text_.clear();
        if (entryDepth_ == 0) {
            if (ends("Acct/Id/IBAN") || ends("Acct/Id/Othr/Id")) account_ = value;
        } else if (path_.size() == entryDepth_) {
            rows_.push_back(statementRow(finished(), {"camt", account_}, calendar_));
            entryDepth_ = 0;
        } else if (!value.empty()) {  // an aggregate's own text is only the white space around its elements
            entryElement(value);
        }
        path_.pop_back();
    }

    // The document broke off: what was read stands, and a problem row says where.
    void broken(int line, std::string_view reason) {
        rows_.push_back({line, std::nullopt,
                         L10n::tr("Il file non è XML valido dalla riga {line} ({reason}): il resto non viene letto.",
                                  {{"line", std::to_string(line)}, {"reason", reason}})});
    }

    std::vector<CSVImportRow> rows() && { return std::move(rows_); }

private:
    // The open elements from depth `from` on, "BookgDt/Dt".
    std::string pathFrom(std::size_t from) const {
        std::string joined;
        for (std::size_t i = from; i < path_.size(); ++i) {
            if (!joined.empty()) joined.push_back('/');
            joined.append(path_[i]);
        }
        return joined;
    }

    bool ends(std::string_view suffix) const { return pathFrom(0).ends_with("/" + std::string(suffix)); }

    void entryElement(const std::string& value) {
        const std::string path = pathFrom(entryDepth_);
        const std::string_view details = "NtryDtls/TxDtls/";
        if (path == "Amt") {
            entry_.record.amountText = value;
            entry_.currency = currency_;
        } else if (path == "CdtDbtInd") {
            entry_.indicator = value;
        } else if (path == "Sts" || path == "Sts/Cd") {
            entry_.status = value;
        } else if (path == "BookgDt/Dt" || path == "BookgDt/DtTm") {
            entry_.bookingDay = value;
        } else if (path == "ValDt/Dt" || path == "ValDt/DtTm") {
            entry_.valueDay = value;
        } else if (path == "AcctSvcrRef" || path == "NtryRef") {
            if (path == "AcctSvcrRef" || entry_.entryReference.empty()) entry_.entryReference = value;
        } else if (path.starts_with(details)) {
            detailElement(std::string_view(path).substr(details.size()), value);
        } else if (path == "AddtlNtryInf") {
            entry_.additional = value;
        }
    }

    void detailElement(std::string_view path, const std::string& value) {
        if (path.starts_with("Refs/") && entry_.transactionReference.empty() && value != "NOTPROVIDED" &&
            (path == "Refs/AcctSvcrRef" || path == "Refs/TxId" || path == "Refs/EndToEndId")) {
            entry_.transactionReference = value;
        } else if (path == "RmtInf/Ustrd") {
            appendWithSpace(entry_.remittance, value);
        } else if (path == "RltdPties/Dbtr/Nm" || path == "RltdPties/Dbtr/Pty/Nm") {
            entry_.debtor = value;
        } else if (path == "RltdPties/Cdtr/Nm" || path == "RltdPties/Cdtr/Pty/Nm") {
            entry_.creditor = value;
        } else if (path == "AmtDtls/InstdAmt/Amt") {
            entry_.record.originalCurrency = currency_;
            entry_.record.originalAmount = plainAmount(value);
        }
    }

    StatementRecord finished() {
        StatementRecord& record = entry_.record;
        record.currency = entry_.currency;
        record.dateText = entry_.bookingDay.empty() ? entry_.valueDay : entry_.bookingDay;
        record.day = isoDay(record.dateText);
        record.bankID = entry_.entryReference.empty() ? entry_.transactionReference : entry_.entryReference;
        record.amount = plainAmount(record.amountText);
        if (record.amount && entry_.indicator == "DBIT") {
            record.amount = -*record.amount;
        } else if (record.amount && entry_.indicator != "CRDT") {
            record.problem = L10n::tr("Non si sa se è un'entrata o un'uscita (CdtDbtInd «{text}»).",
                                      {{"text", entry_.indicator}});
        }
        if (entry_.status != "BOOK") {
            record.problem = L10n::tr("Movimento non ancora contabilizzato (stato «{status}»): non viene importato.",
                                      {{"status", entry_.status}});
        }
        const std::string& party = entry_.indicator == "DBIT" ? entry_.creditor : entry_.debtor;
        appendWithSpace(record.note, party);
        appendWithSpace(record.note, entry_.remittance);
        if (record.note.empty()) record.note = entry_.additional;
        return std::move(record);
    }

    const Calendar& calendar_;
    std::vector<std::string> path_;
    std::string text_;
    std::string currency_;  // the Ccy of the latest Amt
    std::string account_;
    std::size_t entryDepth_ = 0;  // the depth of the open Ntry, 0 outside one
    Entry entry_;
    std::vector<CSVImportRow> rows_;
};

}  // namespace

std::vector<CSVImportRow> readCAMT(std::string_view text, const Calendar& calendar) {
    const std::unique_ptr<std::remove_pointer_t<XML_Parser>, decltype(&XML_ParserFree)> parser(
        XML_ParserCreate("UTF-8"), &XML_ParserFree);
    CAMTWalk walk(calendar);
    if (!parser) return {};
    walk.parser = parser.get();
    XML_SetUserData(parser.get(), &walk);
    XML_SetElementHandler(
        parser.get(),
        [](void* data, const XML_Char* name, const XML_Char** attributes) {
            static_cast<CAMTWalk*>(data)->start(localName(name), attributes);
        },
        [](void* data, const XML_Char*) { static_cast<CAMTWalk*>(data)->end(); });
    XML_SetCharacterDataHandler(parser.get(), [](void* data, const XML_Char* characters, int length) {
        static_cast<CAMTWalk*>(data)->text(characters, length);
    });
    constexpr std::size_t piece = 1 << 20;
    for (std::size_t at = 0; at == 0 || at < text.size(); at += piece) {
        const std::string_view part = text.substr(at, piece);
        const bool last = at + piece >= text.size();
        if (XML_Parse(parser.get(), part.data(), static_cast<int>(part.size()), last) == XML_STATUS_ERROR) {
            walk.broken(static_cast<int>(XML_GetCurrentLineNumber(parser.get())),
                        XML_ErrorString(XML_GetErrorCode(parser.get())));
            break;
        }
    }
    return std::move(walk).rows();
}

}  // namespace vantello
