#include "JSONStruct/Service/AppJSONStruct.h"

namespace protocol {

PROTOCOL_DEFINE_RECORD(AppTask,
    PROTOCOL_FIELD(appPath),
    PROTOCOL_FIELD(GUIDlist))

PROTOCOL_DEFINE_RECORD(AppInfo,
    PROTOCOL_FIELD(id),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(softVersion))

PROTOCOL_DEFINE_MEMBER_RECORD(AppList,
    PROTOCOL_FIELD(AppInfoList))

PROTOCOL_DEFINE_RECORD(AppManage,
    PROTOCOL_FIELD(id),
    PROTOCOL_FIELD(manualCmd))

PROTOCOL_DEFINE_RECORD(SorrelApp,
    PROTOCOL_FIELD(appName),
    // The store sends a 64-bit number; it is kept and written back as its decimal text.
    PROTOCOL_FIELD(commodityId).int64Text())

PROTOCOL_DEFINE_RECORD(SorrelAppListData,
    // The store answers with the bare array, read from the node itself; written under a key.
    PROTOCOL_FIELD(appList).listFromOwnNode())

PROTOCOL_DEFINE_RECORD(CommodityAppIdData,
    PROTOCOL_FIELD(commodityAppId),
    PROTOCOL_FIELD(enableFlag),
    // The store's review states are kept for the reader but never sent back.
    PROTOCOL_FIELD(auditStatus).readOnly(),
    PROTOCOL_FIELD(packStatus).readOnly())

PROTOCOL_DEFINE_RECORD(CommodityIdData,
    PROTOCOL_FIELD(commodityId),
    PROTOCOL_FIELD(deviceList))

PROTOCOL_DEFINE_RECORD(AppVersion,
    PROTOCOL_FIELD(commodityAppPackageId),
    PROTOCOL_FIELD(appPackageUuid),
    PROTOCOL_FIELD(merchantId),
    PROTOCOL_FIELD(commodityAppId),
    PROTOCOL_FIELD(version),
    PROTOCOL_FIELD(koplLowestVersion),
    PROTOCOL_FIELD(ossFileUrl),
    PROTOCOL_FIELD(appId))

PROTOCOL_DEFINE_RECORD(AppVersionListData,
    // The store answers with the bare array, read from the node itself; written under a key.
    PROTOCOL_FIELD(AppVersionList).listFromOwnNode())

PROTOCOL_DEFINE_RECORD(AppListData,
    PROTOCOL_FIELD(AppList))

} // namespace protocol
