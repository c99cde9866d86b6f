#pragma once

#include <workspace/TLayerManager.h>

/** What the items of a document share. */
class TWorkspace
{
public:
    enum : int { SchematicMode = 0 };

    int Mode() const;
    double ValueFromScene(double sceneLength) const;
    QString CurrentUnitStr() const;
    const TLayerManager& Layers() const;

protected:
    int mode = SchematicMode;
    const TLayerManager* layers = nullptr;
};
