// Skeleton files (".bsc") from joint positions.
#pragma once
#include <cstdint>
#include <span>
#include <vector>

struct BscJoint {
  float x, y, z;  // tenths of model units
};

// joints[i] is the joint of part i + 2; the file's count is joints.size() + 1.
void Encode_BSC(std::span<const BscJoint> joints, std::vector<std::uint8_t>* out);
bool Write_BSC(const char* path, std::span<const BscJoint> joints);
