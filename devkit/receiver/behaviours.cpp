#include "receiver/behaviours.h"

#include "receiver/antennas.h"
#include "receiver/corrections.h"
#include "receiver/differential.h"
#include "receiver/firmware.h"
#include "receiver/modem.h"
#include "receiver/navigation.h"
#include "receiver/network.h"
#include "receiver/outputs.h"
#include "receiver/portLock.h"
#include "receiver/portRules.h"
#include "receiver/power.h"
#include "receiver/profiles.h"
#include "receiver/refusals.h"
#include "receiver/serialPorts.h"
#include "receiver/web.h"

namespace melvox_receiver
{

namespace
{

typedef std::unique_ptr<behaviour_t> (*maker_t)(receiver_t&);

template <typename made_t> std::unique_ptr<behaviour_t> make(receiver_t& receiver)
{
    return std::unique_ptr<behaviour_t>(new made_t(receiver));
}

/** A new behaviour is a line here. They are asked in this order; refusals come before all that would take a value. */
maker_t const MAKERS[] = {
    &make<refusals_t>,    &make<power_t>,        &make<navigation_t>, &make<antennas_t>,
    &make<corrections_t>, &make<differential_t>, &make<outputs_t>,    &make<portLock_t>,
    &make<firmware_t>,    &make<profiles_t>,     &make<web_t>,        &make<modem_t>,
    &make<iridium_t>,     &make<serialPorts_t>,  &make<portRules_t>,  &make<network_t>,
};

} // namespace

std::vector<std::unique_ptr<behaviour_t>> makeBehaviours(receiver_t& receiver)
{
    std::vector<std::unique_ptr<behaviour_t>> behaviours;
    for (maker_t maker : MAKERS)
        behaviours.push_back(maker(receiver));
    return behaviours;
}

} // namespace melvox_receiver
