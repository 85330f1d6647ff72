#pragma once

#include <string>

/// What a strict parser (xmllint of libxml2, without network) says against a text as an XML document; empty
/// when it is well-formed.
std::string XmlProblem(const std::string& text);
