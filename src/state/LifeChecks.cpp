#include "state/LifeChecks.h"

#include "numbers/FormatNumber.h"

namespace norlaplan {

std::vector<std::string> checkSentences(const LifeChecks& checks) {
    std::vector<std::string> sentences;
    if (checks.unbalanced) sentences.emplace_back(kUnbalancedSentence);
    if (checks.shorterRowLife) {
        sentences.push_back(std::string(kShorterRowSentence) + ": " +
                            FormatNumber(*checks.shorterRowLife, "#,##0") + " revolutions");
    }
    return sentences;
}

std::vector<std::string> checkNames(const LifeChecks& checks) {
    std::vector<std::string> names;
    if (checks.unbalanced) names.emplace_back("unbalanced");
    if (checks.shorterRowLife) names.emplace_back("row 2 shorter");
    return names;
}

}  // namespace norlaplan
