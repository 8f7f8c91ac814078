#include "farmlog.h"

#include <cstdio>

void farmLog(const QString &line)
{
    std::printf("%s\n", line.toUtf8().constData());
    std::fflush(stdout);
}
