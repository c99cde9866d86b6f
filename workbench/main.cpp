#include "workbench/RunWorkbench.h"

int main(int argc, char** argv)
{
    return RunWorkbench(argc, argv);
}
