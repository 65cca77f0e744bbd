// Cleaning and escaping of texts: file names, table cells, web forms, labels; bounded copies.
// All texts are 8-bit and NUL-terminated. None of these functions reports an error.
#pragma once

#include <qxutility/export.h>

#include <string>
#include <vector>

QX_API char* Sanitize(char* text);
QX_API char* SanitizeNoAsp(char* text);
QX_API void PurifyText(const char* src, char* dst);
QX_API void PurifyText(const char* src, char* dst, const char* escapeSet);
QX_API void UnPurifyText(const char* src, char* dst);
QX_API char* nCleanString(char* text);
QX_API char* nRestoreString(char* text);
QX_API char* UnquoteString(char* text);
QX_API void AddAnotherAmpersand(char* text);
QX_API char* ASPit(const char* src, char* dst, unsigned size);
QX_API char* rstrncpy(char* dst, const char* src, unsigned size);
QX_API char* Path(const char* fileName);
QX_API void SplitName(const char* commandLine, char* program, char* arguments);
QX_API std::vector<std::string> tokenize(const std::string& text, const std::string& delimiters);
