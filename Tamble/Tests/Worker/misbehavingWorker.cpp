#include <Tamble/Worker/Worker.h>

#include "MisbehavingTools.h"

int main(int count, char** arguments) {
    return tamble::runWorker({arguments, static_cast<std::size_t>(count)}, tamble::misbehavingTool);
}
