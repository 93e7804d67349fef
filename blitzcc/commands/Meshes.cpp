// The commands on meshes, surfaces, brushes and textures. Each line is shown in the vocabulary as it is; the
// marks give the types, [] encloses what may be omitted.
#include "commands/CommandTable.h"

#include <iterator>

namespace blitz {

// clang-format off
static constexpr const char* definitions[] = {
    // Textures.
    "CreateTexture (width%,height%[,flags%][,frames%])",
    "LoadTexture (file_name$[,flags%])",
    "LoadAnimTexture (file_name$,flags%,width%,height%,first%,count%)",
    "FreeTexture texture%",
    "TextureBlend texture%,blend%",
    "TextureCoords texture%,coords%",
    "ScaleTexture texture%,u_scale#,v_scale#",
    "RotateTexture texture%,angle#",
    "PositionTexture texture%,u_offset#,v_offset#",
    "TextureWidth (texture%)",
    "TextureHeight (texture%)",
    "TextureName$ (texture%)",
    "TextureBuffer (texture%[,frame%])",
    "TextureFilter match_text$,flags%",
    "ClearTextureFilters",
    "SetCubeFace texture%,face%",
    "SetCubeMode texture%,mode%",
    // Brushes.
    "CreateBrush ([red#][,green#][,blue#])",
    "LoadBrush (file_name$[,texture_flags%][,u_scale#][,v_scale#])",
    "FreeBrush brush%",
    "BrushColor brush%,red#,green#,blue#",
    "BrushAlpha brush%,alpha#",
    "BrushShininess brush%,shininess#",
    "BrushTexture brush%,texture%[,frame%][,index%]",
    "GetBrushTexture (brush%[,index%])",
    "BrushBlend brush%,blend%",
    "BrushFX brush%,fx%",
    // Meshes.
    "LoadMesh (file_name$[,parent%])",
    "LoadAnimMesh (file_name$[,parent%])",
    "CreateMesh ([parent%])",
    "CreateCube ([parent%])",
    "CreateSphere ([segments%][,parent%])",
    "CreateCylinder ([segments%][,solid%][,parent%])",
    "CreateCone ([segments%][,solid%][,parent%])",
    "CopyMesh (mesh%[,parent%])",
    "ScaleMesh mesh%,x_scale#,y_scale#,z_scale#",
    "RotateMesh mesh%,pitch#,yaw#,roll#",
    "PositionMesh mesh%,x#,y#,z#",
    "FitMesh mesh%,x#,y#,z#,width#,height#,depth#[,uniform%]",
    "FlipMesh mesh%",
    "PaintMesh mesh%,brush%",
    "AddMesh source_mesh%,dest_mesh%",
    "UpdateNormals mesh%",
    "LightMesh mesh%,red#,green#,blue#[,range#][,light_x#][,light_y#][,light_z#]",
    "MeshWidth# (mesh%)",
    "MeshHeight# (mesh%)",
    "MeshDepth# (mesh%)",
    "MeshesIntersect (mesh1%,mesh2%)",
    "CountSurfaces (mesh%)",
    "GetSurface (mesh%,index%)",
    "MeshCullBox mesh%,x#,y#,z#,width#,height#,depth#",
    // Surfaces.
    "CreateSurface (mesh%[,brush%])",
    "GetSurfaceBrush (surface%)",
    "FindSurface (mesh%,brush%)",
    "ClearSurface surface%[,vertices%][,triangles%]",
    "PaintSurface surface%,brush%",
    "AddVertex (surface%,x#,y#,z#[,u#][,v#][,w#])",
    "AddTriangle (surface%,vertex0%,vertex1%,vertex2%)",
    "VertexCoords surface%,vertex%,x#,y#,z#",
    "VertexNormal surface%,vertex%,nx#,ny#,nz#",
    "VertexColor surface%,vertex%,red#,green#,blue#[,alpha#]",
    "VertexTexCoords surface%,vertex%,u#,v#[,w#][,coord_set%]",
    "CountVertices (surface%)",
    "CountTriangles (surface%)",
    "VertexX# (surface%,vertex%)",
    "VertexY# (surface%,vertex%)",
    "VertexZ# (surface%,vertex%)",
    "VertexNX# (surface%,vertex%)",
    "VertexNY# (surface%,vertex%)",
    "VertexNZ# (surface%,vertex%)",
    "VertexRed# (surface%,vertex%)",
    "VertexGreen# (surface%,vertex%)",
    "VertexBlue# (surface%,vertex%)",
    "VertexAlpha# (surface%,vertex%)",
    "VertexU# (surface%,vertex%[,coord_set%])",
    "VertexV# (surface%,vertex%[,coord_set%])",
    "VertexW# (surface%,vertex%[,coord_set%])",
    "TriangleVertex (surface%,triangle%,corner%)",
};
// clang-format on

DefinitionTable meshCommands() { return {definitions, std::size(definitions)}; }

}
