#include <Tamble/Desktop/App/Desktop.h>

int main(int argumentCount, char** arguments) {
    return tamble::runDesktop(argumentCount, arguments);
}
