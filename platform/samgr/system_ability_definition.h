/*
 * Ids of the system abilities this project talks to.
 */
#ifndef OHOS_SAMGR_SYSTEM_ABILITY_DEFINITION_H
#define OHOS_SAMGR_SYSTEM_ABILITY_DEFINITION_H

namespace OHOS {

enum {
    SAMGR_SA_ID = 0,
    FIRST_SYS_ABILITY_ID = 0x00000001,
    LAST_SYS_ABILITY_ID = 0x00ffffff,
};

} // namespace OHOS

#endif // OHOS_SAMGR_SYSTEM_ABILITY_DEFINITION_H
