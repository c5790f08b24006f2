#include "qsymbol/files/overwrite_question.h"

namespace qsymbol {

bool MayOverwrite(const std::u16string& path, const FileEnvironment& environment) {
    if (!environment.files.FileExists(path))
        return true;
    const std::u16string question = u"Datei " + path + u" existiert schon. Soll sie überschrieben werden ?";
    return environment.prompt.AskYesNo(question, u"Symboleditor");
}

} // namespace qsymbol
