#include "imageframe.h"

#include "framedisplay.h"
#include "sampleformat.h"

const void *ImageFrame::planeData(std::size_t index) const
{
    if (index < ownedPlanes.size())
        return ownedPlanes[index].data();
    return index < planes.size() ? planes[index] : nullptr;
}

std::uint64_t ImageFrame::planeBytes(std::size_t index) const
{
    if (index >= planeSizes.size())
        return 0;
    const PlaneSize &size = planeSizes[index];
    return ::planeBytes(size.width, size.height, components, bytesPerSample(pixelType)).value_or(0);
}

void ImageFrame::retain()
{
    if (inVideoMemory || displayCount >= 1)
        return;
    displayCount = 1;
    // A frame fresh from its file still has the textures of its first upload.
    if (display && textureNames.empty())
        display->uploadTextures(*this);
}

void ImageFrame::release()
{
    --displayCount;
    if (displayCount < 1 && !inVideoMemory)
        deleteTextures();
}

void ImageFrame::deleteTextures()
{
    if (display && !textureNames.empty())
        display->deleteTextures(*this);
}
