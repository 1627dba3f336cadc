#include "contender.h"

namespace bench {

std::vector<std::unique_ptr<Contender>> makeContenders() {
    std::vector<std::unique_ptr<Contender>> contenders;
    contenders.push_back(makeQuarlo());
    contenders.push_back(makeLimit());
#ifdef BENCH_HAS_SDL2
    contenders.push_back(makeSdl2());
#endif
#ifdef BENCH_HAS_PIXMAN
    contenders.push_back(makePixman());
#endif
#ifdef BENCH_HAS_CAIRO
    contenders.push_back(makeCairo());
#endif
#ifdef BENCH_HAS_AGG
    contenders.push_back(makeAgg());
#endif
#ifdef BENCH_HAS_ALLEGRO4
    contenders.push_back(makeAllegro4());
#endif
#ifdef BENCH_HAS_QT5
    contenders.push_back(makeQt5());
#endif
    return contenders;
}

} // namespace bench
