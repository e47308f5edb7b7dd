// All fixed paths of the installation and of the control service. They are defined only here.
#pragma once

constexpr char INSTALL_DIR[] = "/opt/arven/Ulmar Disc Maker";
constexpr char TRANSLATION_DIR[] = "/opt/arven/Ulmar Disc Maker/tr/";
constexpr char CONF_DIR[] = "/opt/arven/Ulmar Disc Maker/conf";
constexpr char REGISTRY_FILE[] = "/opt/arven/Ulmar Disc Maker/conf/registry.txt";
constexpr char PUBLISHER_SETTING_DIR[] = "/opt/arven/Ulmar Disc Maker/conf/RegPublisher";
constexpr char JOB_DIR[] = "/opt/arven/Ulmar Disc Maker/JOB";
constexpr char HEAD_CLEANING_DATA[] = "/opt/arven/Ulmar Disc Maker/res/prnfile/headCleaning.prn";
constexpr char NOZZLE_CHECK_DATA[] = "/opt/arven/Ulmar Disc Maker/res/prnfile/nozzleCheck.prn";

constexpr char SERVICE_SOCKET[] = "/var/run/arvenUlmarDiscControl.socket";
constexpr char LOG_AGENT_SOCKET[] = "/var/run/arvenUlmarDiscControlLog.socket";
constexpr char SERVICE_LOG_DIR[] = "/var/log/";
constexpr char SERVICE_LOG_FILTER[] = "arvenUlmarDiscControl.log*";
