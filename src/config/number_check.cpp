// The number check in the process's language.
#include "config/process.h"
#include "core/number_text.h"

#include <qxutility/core/numbers.h>

int IsNumber(char* text, double* value)
{
    const CLanguage& language = qx::Process().language;
    const qx::NumberKind kind = qx::ClassifyNumber(text, language.Decimal());
    if (value && kind != qx::NumberKind::None) {
        language.EnglishNumber(text);
        *value = Number(text);
    }
    return static_cast<int>(kind);
}
