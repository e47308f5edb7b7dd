// Every fixed location of the installation and of the control service, once.
#pragma once

constexpr char INSTALL_DIR[] = "/opt/arven/Ulmar Disc Maker";
constexpr char TRANSLATION_DIR[] = "/opt/arven/Ulmar Disc Maker/tr/";
constexpr char CONF_DIR[] = "/opt/arven/Ulmar Disc Maker/conf";
constexpr char REGISTRY_FILE[] = "/opt/arven/Ulmar Disc Maker/conf/registry.txt";
constexpr char PUBLISHER_SETTING_DIR[] = "/opt/arven/Ulmar Disc Maker/conf/RegPublisher";

constexpr char SERVICE_SOCKET[] = "/var/run/arvenUlmarDiscControl.socket";
constexpr char LOG_AGENT_SOCKET[] = "/var/run/arvenUlmarDiscControlLog.socket";
