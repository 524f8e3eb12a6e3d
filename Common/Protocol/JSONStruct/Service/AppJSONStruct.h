#pragma once
// Application management: the apps of a device, tasks that install them, and the app
// store's commodities and versions.
#include <cstdint>
#include <string>
#include <vector>

#include "JSONStruct/Device/DeviceJSONStruct.h"
#include "JSONStruct/FieldTable.h"

namespace protocol {

struct AppTask : public IInboundData {
    std::string appPath;
    std::vector<std::string> GUIDlist;

    PROTOCOL_DECLARE_RECORD(AppTask)
    PROTOCOL_ROOT_NAME("appTask")
};

struct AppInfo : public IReturnData {
    int32_t id = 0;
    std::string name;
    std::string softVersion;

    PROTOCOL_DECLARE_RECORD(AppInfo)
};

struct AppList : public IReturnData {
    std::vector<AppInfo> AppInfoList;

    PROTOCOL_DECLARE_MEMBER_RECORD(AppList)
};

struct AppManage : public IInboundData {
    int32_t id = 0;
    std::string manualCmd;

    PROTOCOL_DECLARE_RECORD(AppManage)
    PROTOCOL_ROOT_NAME("AppManage")
};

struct SorrelApp : public IReturnData {
    std::string appName;
    std::string commodityId;              // decimal text of a 64-bit number

    PROTOCOL_DECLARE_RECORD(SorrelApp)
};

struct SorrelAppListData : public IReturnData {
    std::vector<SorrelApp> appList;

    PROTOCOL_DECLARE_RECORD(SorrelAppListData)
};

struct CommodityAppIdData : public IReturnData {
    double commodityAppId = 0.0;
    std::string enableFlag;
    std::string auditStatus;              // read, never written
    std::string packStatus;               // read, never written

    PROTOCOL_DECLARE_RECORD(CommodityAppIdData)
};

struct CommodityIdData : public IReturnData {
    std::string commodityId;
    std::vector<KOPLDevice> deviceList;

    PROTOCOL_DECLARE_RECORD(CommodityIdData)
};

struct AppVersion : public IReturnData {
    int32_t commodityAppPackageId = 0;
    std::string appPackageUuid;
    int32_t merchantId = 0;
    double commodityAppId = 0.0;
    std::string version;
    std::string koplLowestVersion;
    std::string ossFileUrl;
    std::string appId;

    PROTOCOL_DECLARE_RECORD(AppVersion)
};

struct AppVersionListData : public IReturnData {
    std::vector<AppVersion> AppVersionList;

    PROTOCOL_DECLARE_RECORD(AppVersionListData)
};

struct AppListData : public IReturnData {
    protocol::AppList AppList;

    PROTOCOL_DECLARE_RECORD(AppListData)
};

} // namespace protocol
