// SPDX-License-Identifier: MIT
#pragma once

#include <libxml/parser.h>
#include <libxml/xmlerror.h>

#include <memory>
#include <string>

// Whether a text is well-formed XML, as libxml2 reads it.
namespace lumerin::xml {

// The first fault with its line; empty: well formed.
inline std::string Fault(const std::string& text) {
    constexpr int kOptions = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;
    xmlResetLastError();
    const std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> document(
        xmlReadMemory(text.data(), static_cast<int>(text.size()), "workbook", nullptr, kOptions), xmlFreeDoc);
    // A prefix without its name space is no fault of the form: the test's fragments have no frame around
    // them.
    if (document != nullptr) return {};
    const xmlError* fault = xmlGetLastError();
    if (fault == nullptr) return "no document";
    return "line " + std::to_string(fault->line) + ": " + fault->message;
}

}  // namespace lumerin::xml
