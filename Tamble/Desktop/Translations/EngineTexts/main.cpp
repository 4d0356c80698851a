#include <Tamble/Desktop/Translations/EngineTexts/EngineTexts.h>

#include <iostream>

int main() {
    tamble::EngineTexts texts;
    tamble::addToolTexts(texts);
    tamble::addSentences(texts);
    std::cout << tamble::sourceCode(texts);
    return std::cout.good() ? 0 : 1;
}
