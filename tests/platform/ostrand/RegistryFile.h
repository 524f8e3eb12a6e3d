#pragma once
// A registry file in a fresh temporary folder, pointed at by CDeviceRegistry for the
// lifetime of the object.
#include <cstdio>
#include <fstream>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "ostrand/DeviceRegistry.h"

class TemporaryRegistry {
public:
    TemporaryRegistry()
    {
        char directory[] = "/tmp/velmora-registry-XXXXXX";
        if (mkdtemp(directory) != nullptr)
            m_directory = directory;
        m_path = m_directory + "/velmora-registry.json";
        ostrand::CDeviceRegistry::instance().setPath(m_path);
    }

    ~TemporaryRegistry()
    {
        ostrand::CDeviceRegistry::instance().setPath(std::string());
        std::remove(m_path.c_str());
        rmdir(m_directory.c_str());
    }

    void write(const std::string& text)
    {
        std::ofstream stream(m_path, std::ios::binary | std::ios::trunc);
        stream << text;
    }

    // Writes a new file beside the old one and renames it over it: readers see the old or
    // the new registry, never a half-written one.
    void replace(const std::string& text)
    {
        const std::string temporary = m_path + ".new";
        {
            std::ofstream stream(temporary, std::ios::binary | std::ios::trunc);
            stream << text;
        }
        std::rename(temporary.c_str(), m_path.c_str());
    }

    const std::string& path() const { return m_path; }

private:
    std::string m_directory;
    std::string m_path;
};
