#ifndef MELVOX_RECEIVER_BEHAVIOURS_H
#define MELVOX_RECEIVER_BEHAVIOURS_H

#include <memory>
#include <vector>

namespace melvox_receiver
{

class behaviour_t;
class receiver_t;

std::vector<std::unique_ptr<behaviour_t>> makeBehaviours(receiver_t& receiver);

} // namespace melvox_receiver

#endif
