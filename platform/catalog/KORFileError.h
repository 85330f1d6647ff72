#pragma once

#include <string>

/// What is wrong with something that was to be read or written, and where: the one error object of files and
/// texts, whoever meets it. Who fails fills it and answers false or nothing; who is asked through an
/// interface of the module's turns it into a status.
struct KORFileError {
    std::string file = {};     ///< as messages call it; empty: the caller's to say
    int line = 0;              ///< counted from 1; 0: the file as a whole
    int column = 0;            ///< counted from 1 in bytes; 0: the whole line
    std::string message = {};  ///< what is wrong, and what was expected
    std::string reason = {};   ///< why, in the words of the system; empty when the message says it all

    std::string Sentence() const;  ///< "message: reason"
    std::string Text() const;      ///< "file:line:column: message: reason", without what is missing
};
