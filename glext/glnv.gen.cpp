// SPDX-License-Identifier: MIT
// Entry points, flags and resolving functions: nv group.
// Made by tools/generate_glext.py from OpenGL headers of 20220530; don't edit.
// clang-format off

#include "glext/glextloader.h"

PFNGLBEGINCONDITIONALRENDERNVXPROC glBeginConditionalRenderNVX = nullptr;
PFNGLENDCONDITIONALRENDERNVXPROC glEndConditionalRenderNVX = nullptr;
PFNGLUPLOADGPUMASKNVXPROC glUploadGpuMaskNVX = nullptr;
PFNGLMULTICASTVIEWPORTARRAYVNVXPROC glMulticastViewportArrayvNVX = nullptr;
PFNGLMULTICASTVIEWPORTPOSITIONWSCALENVXPROC glMulticastViewportPositionWScaleNVX = nullptr;
PFNGLMULTICASTSCISSORARRAYVNVXPROC glMulticastScissorArrayvNVX = nullptr;
PFNGLASYNCCOPYBUFFERSUBDATANVXPROC glAsyncCopyBufferSubDataNVX = nullptr;
PFNGLASYNCCOPYIMAGESUBDATANVXPROC glAsyncCopyImageSubDataNVX = nullptr;
PFNGLLGPUNAMEDBUFFERSUBDATANVXPROC glLGPUNamedBufferSubDataNVX = nullptr;
PFNGLLGPUCOPYIMAGESUBDATANVXPROC glLGPUCopyImageSubDataNVX = nullptr;
PFNGLLGPUINTERLOCKNVXPROC glLGPUInterlockNVX = nullptr;
PFNGLCREATEPROGRESSFENCENVXPROC glCreateProgressFenceNVX = nullptr;
PFNGLSIGNALSEMAPHOREUI64NVXPROC glSignalSemaphoreui64NVX = nullptr;
PFNGLWAITSEMAPHOREUI64NVXPROC glWaitSemaphoreui64NVX = nullptr;
PFNGLCLIENTWAITSEMAPHOREUI64NVXPROC glClientWaitSemaphoreui64NVX = nullptr;
PFNGLALPHATOCOVERAGEDITHERCONTROLNVPROC glAlphaToCoverageDitherControlNV = nullptr;
PFNGLMULTIDRAWARRAYSINDIRECTBINDLESSNVPROC glMultiDrawArraysIndirectBindlessNV = nullptr;
PFNGLMULTIDRAWELEMENTSINDIRECTBINDLESSNVPROC glMultiDrawElementsIndirectBindlessNV = nullptr;
PFNGLMULTIDRAWARRAYSINDIRECTBINDLESSCOUNTNVPROC glMultiDrawArraysIndirectBindlessCountNV = nullptr;
PFNGLMULTIDRAWELEMENTSINDIRECTBINDLESSCOUNTNVPROC glMultiDrawElementsIndirectBindlessCountNV = nullptr;
PFNGLGETTEXTUREHANDLENVPROC glGetTextureHandleNV = nullptr;
PFNGLGETTEXTURESAMPLERHANDLENVPROC glGetTextureSamplerHandleNV = nullptr;
PFNGLMAKETEXTUREHANDLERESIDENTNVPROC glMakeTextureHandleResidentNV = nullptr;
PFNGLMAKETEXTUREHANDLENONRESIDENTNVPROC glMakeTextureHandleNonResidentNV = nullptr;
PFNGLGETIMAGEHANDLENVPROC glGetImageHandleNV = nullptr;
PFNGLMAKEIMAGEHANDLERESIDENTNVPROC glMakeImageHandleResidentNV = nullptr;
PFNGLMAKEIMAGEHANDLENONRESIDENTNVPROC glMakeImageHandleNonResidentNV = nullptr;
PFNGLUNIFORMHANDLEUI64NVPROC glUniformHandleui64NV = nullptr;
PFNGLUNIFORMHANDLEUI64VNVPROC glUniformHandleui64vNV = nullptr;
PFNGLPROGRAMUNIFORMHANDLEUI64NVPROC glProgramUniformHandleui64NV = nullptr;
PFNGLPROGRAMUNIFORMHANDLEUI64VNVPROC glProgramUniformHandleui64vNV = nullptr;
PFNGLISTEXTUREHANDLERESIDENTNVPROC glIsTextureHandleResidentNV = nullptr;
PFNGLISIMAGEHANDLERESIDENTNVPROC glIsImageHandleResidentNV = nullptr;
PFNGLBLENDPARAMETERINVPROC glBlendParameteriNV = nullptr;
PFNGLBLENDBARRIERNVPROC glBlendBarrierNV = nullptr;
PFNGLVIEWPORTPOSITIONWSCALENVPROC glViewportPositionWScaleNV = nullptr;
PFNGLCREATESTATESNVPROC glCreateStatesNV = nullptr;
PFNGLDELETESTATESNVPROC glDeleteStatesNV = nullptr;
PFNGLISSTATENVPROC glIsStateNV = nullptr;
PFNGLSTATECAPTURENVPROC glStateCaptureNV = nullptr;
PFNGLGETCOMMANDHEADERNVPROC glGetCommandHeaderNV = nullptr;
PFNGLGETSTAGEINDEXNVPROC glGetStageIndexNV = nullptr;
PFNGLDRAWCOMMANDSNVPROC glDrawCommandsNV = nullptr;
PFNGLDRAWCOMMANDSADDRESSNVPROC glDrawCommandsAddressNV = nullptr;
PFNGLDRAWCOMMANDSSTATESNVPROC glDrawCommandsStatesNV = nullptr;
PFNGLDRAWCOMMANDSSTATESADDRESSNVPROC glDrawCommandsStatesAddressNV = nullptr;
PFNGLCREATECOMMANDLISTSNVPROC glCreateCommandListsNV = nullptr;
PFNGLDELETECOMMANDLISTSNVPROC glDeleteCommandListsNV = nullptr;
PFNGLISCOMMANDLISTNVPROC glIsCommandListNV = nullptr;
PFNGLLISTDRAWCOMMANDSSTATESCLIENTNVPROC glListDrawCommandsStatesClientNV = nullptr;
PFNGLCOMMANDLISTSEGMENTSNVPROC glCommandListSegmentsNV = nullptr;
PFNGLCOMPILECOMMANDLISTNVPROC glCompileCommandListNV = nullptr;
PFNGLCALLCOMMANDLISTNVPROC glCallCommandListNV = nullptr;
PFNGLBEGINCONDITIONALRENDERNVPROC glBeginConditionalRenderNV = nullptr;
PFNGLENDCONDITIONALRENDERNVPROC glEndConditionalRenderNV = nullptr;
PFNGLSUBPIXELPRECISIONBIASNVPROC glSubpixelPrecisionBiasNV = nullptr;
PFNGLCONSERVATIVERASTERPARAMETERFNVPROC glConservativeRasterParameterfNV = nullptr;
PFNGLCONSERVATIVERASTERPARAMETERINVPROC glConservativeRasterParameteriNV = nullptr;
PFNGLCOPYIMAGESUBDATANVPROC glCopyImageSubDataNV = nullptr;
PFNGLDEPTHRANGEDNVPROC glDepthRangedNV = nullptr;
PFNGLCLEARDEPTHDNVPROC glClearDepthdNV = nullptr;
PFNGLDEPTHBOUNDSDNVPROC glDepthBoundsdNV = nullptr;
PFNGLDRAWTEXTURENVPROC glDrawTextureNV = nullptr;
PFNGLDRAWVKIMAGENVPROC glDrawVkImageNV = nullptr;
PFNGLGETVKPROCADDRNVPROC glGetVkProcAddrNV = nullptr;
PFNGLWAITVKSEMAPHORENVPROC glWaitVkSemaphoreNV = nullptr;
PFNGLSIGNALVKSEMAPHORENVPROC glSignalVkSemaphoreNV = nullptr;
PFNGLSIGNALVKFENCENVPROC glSignalVkFenceNV = nullptr;
PFNGLMAPCONTROLPOINTSNVPROC glMapControlPointsNV = nullptr;
PFNGLMAPPARAMETERIVNVPROC glMapParameterivNV = nullptr;
PFNGLMAPPARAMETERFVNVPROC glMapParameterfvNV = nullptr;
PFNGLGETMAPCONTROLPOINTSNVPROC glGetMapControlPointsNV = nullptr;
PFNGLGETMAPPARAMETERIVNVPROC glGetMapParameterivNV = nullptr;
PFNGLGETMAPPARAMETERFVNVPROC glGetMapParameterfvNV = nullptr;
PFNGLGETMAPATTRIBPARAMETERIVNVPROC glGetMapAttribParameterivNV = nullptr;
PFNGLGETMAPATTRIBPARAMETERFVNVPROC glGetMapAttribParameterfvNV = nullptr;
PFNGLEVALMAPSNVPROC glEvalMapsNV = nullptr;
PFNGLGETMULTISAMPLEFVNVPROC glGetMultisamplefvNV = nullptr;
PFNGLSAMPLEMASKINDEXEDNVPROC glSampleMaskIndexedNV = nullptr;
PFNGLTEXRENDERBUFFERNVPROC glTexRenderbufferNV = nullptr;
PFNGLDELETEFENCESNVPROC glDeleteFencesNV = nullptr;
PFNGLGENFENCESNVPROC glGenFencesNV = nullptr;
PFNGLISFENCENVPROC glIsFenceNV = nullptr;
PFNGLTESTFENCENVPROC glTestFenceNV = nullptr;
PFNGLGETFENCEIVNVPROC glGetFenceivNV = nullptr;
PFNGLFINISHFENCENVPROC glFinishFenceNV = nullptr;
PFNGLSETFENCENVPROC glSetFenceNV = nullptr;
PFNGLFRAGMENTCOVERAGECOLORNVPROC glFragmentCoverageColorNV = nullptr;
PFNGLPROGRAMNAMEDPARAMETER4FNVPROC glProgramNamedParameter4fNV = nullptr;
PFNGLPROGRAMNAMEDPARAMETER4FVNVPROC glProgramNamedParameter4fvNV = nullptr;
PFNGLPROGRAMNAMEDPARAMETER4DNVPROC glProgramNamedParameter4dNV = nullptr;
PFNGLPROGRAMNAMEDPARAMETER4DVNVPROC glProgramNamedParameter4dvNV = nullptr;
PFNGLGETPROGRAMNAMEDPARAMETERFVNVPROC glGetProgramNamedParameterfvNV = nullptr;
PFNGLGETPROGRAMNAMEDPARAMETERDVNVPROC glGetProgramNamedParameterdvNV = nullptr;
PFNGLCOVERAGEMODULATIONTABLENVPROC glCoverageModulationTableNV = nullptr;
PFNGLGETCOVERAGEMODULATIONTABLENVPROC glGetCoverageModulationTableNV = nullptr;
PFNGLCOVERAGEMODULATIONNVPROC glCoverageModulationNV = nullptr;
PFNGLRENDERBUFFERSTORAGEMULTISAMPLECOVERAGENVPROC glRenderbufferStorageMultisampleCoverageNV = nullptr;
PFNGLPROGRAMVERTEXLIMITNVPROC glProgramVertexLimitNV = nullptr;
PFNGLFRAMEBUFFERTEXTUREEXTPROC glFramebufferTextureEXT = nullptr;
PFNGLFRAMEBUFFERTEXTUREFACEEXTPROC glFramebufferTextureFaceEXT = nullptr;
PFNGLRENDERGPUMASKNVPROC glRenderGpuMaskNV = nullptr;
PFNGLMULTICASTBUFFERSUBDATANVPROC glMulticastBufferSubDataNV = nullptr;
PFNGLMULTICASTCOPYBUFFERSUBDATANVPROC glMulticastCopyBufferSubDataNV = nullptr;
PFNGLMULTICASTCOPYIMAGESUBDATANVPROC glMulticastCopyImageSubDataNV = nullptr;
PFNGLMULTICASTBLITFRAMEBUFFERNVPROC glMulticastBlitFramebufferNV = nullptr;
PFNGLMULTICASTFRAMEBUFFERSAMPLELOCATIONSFVNVPROC glMulticastFramebufferSampleLocationsfvNV = nullptr;
PFNGLMULTICASTBARRIERNVPROC glMulticastBarrierNV = nullptr;
PFNGLMULTICASTWAITSYNCNVPROC glMulticastWaitSyncNV = nullptr;
PFNGLMULTICASTGETQUERYOBJECTIVNVPROC glMulticastGetQueryObjectivNV = nullptr;
PFNGLMULTICASTGETQUERYOBJECTUIVNVPROC glMulticastGetQueryObjectuivNV = nullptr;
PFNGLMULTICASTGETQUERYOBJECTI64VNVPROC glMulticastGetQueryObjecti64vNV = nullptr;
PFNGLMULTICASTGETQUERYOBJECTUI64VNVPROC glMulticastGetQueryObjectui64vNV = nullptr;
PFNGLPROGRAMLOCALPARAMETERI4INVPROC glProgramLocalParameterI4iNV = nullptr;
PFNGLPROGRAMLOCALPARAMETERI4IVNVPROC glProgramLocalParameterI4ivNV = nullptr;
PFNGLPROGRAMLOCALPARAMETERSI4IVNVPROC glProgramLocalParametersI4ivNV = nullptr;
PFNGLPROGRAMLOCALPARAMETERI4UINVPROC glProgramLocalParameterI4uiNV = nullptr;
PFNGLPROGRAMLOCALPARAMETERI4UIVNVPROC glProgramLocalParameterI4uivNV = nullptr;
PFNGLPROGRAMLOCALPARAMETERSI4UIVNVPROC glProgramLocalParametersI4uivNV = nullptr;
PFNGLPROGRAMENVPARAMETERI4INVPROC glProgramEnvParameterI4iNV = nullptr;
PFNGLPROGRAMENVPARAMETERI4IVNVPROC glProgramEnvParameterI4ivNV = nullptr;
PFNGLPROGRAMENVPARAMETERSI4IVNVPROC glProgramEnvParametersI4ivNV = nullptr;
PFNGLPROGRAMENVPARAMETERI4UINVPROC glProgramEnvParameterI4uiNV = nullptr;
PFNGLPROGRAMENVPARAMETERI4UIVNVPROC glProgramEnvParameterI4uivNV = nullptr;
PFNGLPROGRAMENVPARAMETERSI4UIVNVPROC glProgramEnvParametersI4uivNV = nullptr;
PFNGLGETPROGRAMLOCALPARAMETERIIVNVPROC glGetProgramLocalParameterIivNV = nullptr;
PFNGLGETPROGRAMLOCALPARAMETERIUIVNVPROC glGetProgramLocalParameterIuivNV = nullptr;
PFNGLGETPROGRAMENVPARAMETERIIVNVPROC glGetProgramEnvParameterIivNV = nullptr;
PFNGLGETPROGRAMENVPARAMETERIUIVNVPROC glGetProgramEnvParameterIuivNV = nullptr;
PFNGLPROGRAMSUBROUTINEPARAMETERSUIVNVPROC glProgramSubroutineParametersuivNV = nullptr;
PFNGLGETPROGRAMSUBROUTINEPARAMETERUIVNVPROC glGetProgramSubroutineParameteruivNV = nullptr;
PFNGLVERTEX2HNVPROC glVertex2hNV = nullptr;
PFNGLVERTEX2HVNVPROC glVertex2hvNV = nullptr;
PFNGLVERTEX3HNVPROC glVertex3hNV = nullptr;
PFNGLVERTEX3HVNVPROC glVertex3hvNV = nullptr;
PFNGLVERTEX4HNVPROC glVertex4hNV = nullptr;
PFNGLVERTEX4HVNVPROC glVertex4hvNV = nullptr;
PFNGLNORMAL3HNVPROC glNormal3hNV = nullptr;
PFNGLNORMAL3HVNVPROC glNormal3hvNV = nullptr;
PFNGLCOLOR3HNVPROC glColor3hNV = nullptr;
PFNGLCOLOR3HVNVPROC glColor3hvNV = nullptr;
PFNGLCOLOR4HNVPROC glColor4hNV = nullptr;
PFNGLCOLOR4HVNVPROC glColor4hvNV = nullptr;
PFNGLTEXCOORD1HNVPROC glTexCoord1hNV = nullptr;
PFNGLTEXCOORD1HVNVPROC glTexCoord1hvNV = nullptr;
PFNGLTEXCOORD2HNVPROC glTexCoord2hNV = nullptr;
PFNGLTEXCOORD2HVNVPROC glTexCoord2hvNV = nullptr;
PFNGLTEXCOORD3HNVPROC glTexCoord3hNV = nullptr;
PFNGLTEXCOORD3HVNVPROC glTexCoord3hvNV = nullptr;
PFNGLTEXCOORD4HNVPROC glTexCoord4hNV = nullptr;
PFNGLTEXCOORD4HVNVPROC glTexCoord4hvNV = nullptr;
PFNGLMULTITEXCOORD1HNVPROC glMultiTexCoord1hNV = nullptr;
PFNGLMULTITEXCOORD1HVNVPROC glMultiTexCoord1hvNV = nullptr;
PFNGLMULTITEXCOORD2HNVPROC glMultiTexCoord2hNV = nullptr;
PFNGLMULTITEXCOORD2HVNVPROC glMultiTexCoord2hvNV = nullptr;
PFNGLMULTITEXCOORD3HNVPROC glMultiTexCoord3hNV = nullptr;
PFNGLMULTITEXCOORD3HVNVPROC glMultiTexCoord3hvNV = nullptr;
PFNGLMULTITEXCOORD4HNVPROC glMultiTexCoord4hNV = nullptr;
PFNGLMULTITEXCOORD4HVNVPROC glMultiTexCoord4hvNV = nullptr;
PFNGLFOGCOORDHNVPROC glFogCoordhNV = nullptr;
PFNGLFOGCOORDHVNVPROC glFogCoordhvNV = nullptr;
PFNGLSECONDARYCOLOR3HNVPROC glSecondaryColor3hNV = nullptr;
PFNGLSECONDARYCOLOR3HVNVPROC glSecondaryColor3hvNV = nullptr;
PFNGLVERTEXWEIGHTHNVPROC glVertexWeighthNV = nullptr;
PFNGLVERTEXWEIGHTHVNVPROC glVertexWeighthvNV = nullptr;
PFNGLVERTEXATTRIB1HNVPROC glVertexAttrib1hNV = nullptr;
PFNGLVERTEXATTRIB1HVNVPROC glVertexAttrib1hvNV = nullptr;
PFNGLVERTEXATTRIB2HNVPROC glVertexAttrib2hNV = nullptr;
PFNGLVERTEXATTRIB2HVNVPROC glVertexAttrib2hvNV = nullptr;
PFNGLVERTEXATTRIB3HNVPROC glVertexAttrib3hNV = nullptr;
PFNGLVERTEXATTRIB3HVNVPROC glVertexAttrib3hvNV = nullptr;
PFNGLVERTEXATTRIB4HNVPROC glVertexAttrib4hNV = nullptr;
PFNGLVERTEXATTRIB4HVNVPROC glVertexAttrib4hvNV = nullptr;
PFNGLVERTEXATTRIBS1HVNVPROC glVertexAttribs1hvNV = nullptr;
PFNGLVERTEXATTRIBS2HVNVPROC glVertexAttribs2hvNV = nullptr;
PFNGLVERTEXATTRIBS3HVNVPROC glVertexAttribs3hvNV = nullptr;
PFNGLVERTEXATTRIBS4HVNVPROC glVertexAttribs4hvNV = nullptr;
PFNGLGETINTERNALFORMATSAMPLEIVNVPROC glGetInternalformatSampleivNV = nullptr;
PFNGLGETMEMORYOBJECTDETACHEDRESOURCESUIVNVPROC glGetMemoryObjectDetachedResourcesuivNV = nullptr;
PFNGLRESETMEMORYOBJECTPARAMETERNVPROC glResetMemoryObjectParameterNV = nullptr;
PFNGLTEXATTACHMEMORYNVPROC glTexAttachMemoryNV = nullptr;
PFNGLBUFFERATTACHMEMORYNVPROC glBufferAttachMemoryNV = nullptr;
PFNGLTEXTUREATTACHMEMORYNVPROC glTextureAttachMemoryNV = nullptr;
PFNGLNAMEDBUFFERATTACHMEMORYNVPROC glNamedBufferAttachMemoryNV = nullptr;
PFNGLBUFFERPAGECOMMITMENTMEMNVPROC glBufferPageCommitmentMemNV = nullptr;
PFNGLTEXPAGECOMMITMENTMEMNVPROC glTexPageCommitmentMemNV = nullptr;
PFNGLNAMEDBUFFERPAGECOMMITMENTMEMNVPROC glNamedBufferPageCommitmentMemNV = nullptr;
PFNGLTEXTUREPAGECOMMITMENTMEMNVPROC glTexturePageCommitmentMemNV = nullptr;
PFNGLDRAWMESHTASKSNVPROC glDrawMeshTasksNV = nullptr;
PFNGLDRAWMESHTASKSINDIRECTNVPROC glDrawMeshTasksIndirectNV = nullptr;
PFNGLMULTIDRAWMESHTASKSINDIRECTNVPROC glMultiDrawMeshTasksIndirectNV = nullptr;
PFNGLMULTIDRAWMESHTASKSINDIRECTCOUNTNVPROC glMultiDrawMeshTasksIndirectCountNV = nullptr;
PFNGLGENOCCLUSIONQUERIESNVPROC glGenOcclusionQueriesNV = nullptr;
PFNGLDELETEOCCLUSIONQUERIESNVPROC glDeleteOcclusionQueriesNV = nullptr;
PFNGLISOCCLUSIONQUERYNVPROC glIsOcclusionQueryNV = nullptr;
PFNGLBEGINOCCLUSIONQUERYNVPROC glBeginOcclusionQueryNV = nullptr;
PFNGLENDOCCLUSIONQUERYNVPROC glEndOcclusionQueryNV = nullptr;
PFNGLGETOCCLUSIONQUERYIVNVPROC glGetOcclusionQueryivNV = nullptr;
PFNGLGETOCCLUSIONQUERYUIVNVPROC glGetOcclusionQueryuivNV = nullptr;
PFNGLPROGRAMBUFFERPARAMETERSFVNVPROC glProgramBufferParametersfvNV = nullptr;
PFNGLPROGRAMBUFFERPARAMETERSIIVNVPROC glProgramBufferParametersIivNV = nullptr;
PFNGLPROGRAMBUFFERPARAMETERSIUIVNVPROC glProgramBufferParametersIuivNV = nullptr;
PFNGLGENPATHSNVPROC glGenPathsNV = nullptr;
PFNGLDELETEPATHSNVPROC glDeletePathsNV = nullptr;
PFNGLISPATHNVPROC glIsPathNV = nullptr;
PFNGLPATHCOMMANDSNVPROC glPathCommandsNV = nullptr;
PFNGLPATHCOORDSNVPROC glPathCoordsNV = nullptr;
PFNGLPATHSUBCOMMANDSNVPROC glPathSubCommandsNV = nullptr;
PFNGLPATHSUBCOORDSNVPROC glPathSubCoordsNV = nullptr;
PFNGLPATHSTRINGNVPROC glPathStringNV = nullptr;
PFNGLPATHGLYPHSNVPROC glPathGlyphsNV = nullptr;
PFNGLPATHGLYPHRANGENVPROC glPathGlyphRangeNV = nullptr;
PFNGLWEIGHTPATHSNVPROC glWeightPathsNV = nullptr;
PFNGLCOPYPATHNVPROC glCopyPathNV = nullptr;
PFNGLINTERPOLATEPATHSNVPROC glInterpolatePathsNV = nullptr;
PFNGLTRANSFORMPATHNVPROC glTransformPathNV = nullptr;
PFNGLPATHPARAMETERIVNVPROC glPathParameterivNV = nullptr;
PFNGLPATHPARAMETERINVPROC glPathParameteriNV = nullptr;
PFNGLPATHPARAMETERFVNVPROC glPathParameterfvNV = nullptr;
PFNGLPATHPARAMETERFNVPROC glPathParameterfNV = nullptr;
PFNGLPATHDASHARRAYNVPROC glPathDashArrayNV = nullptr;
PFNGLPATHSTENCILFUNCNVPROC glPathStencilFuncNV = nullptr;
PFNGLPATHSTENCILDEPTHOFFSETNVPROC glPathStencilDepthOffsetNV = nullptr;
PFNGLSTENCILFILLPATHNVPROC glStencilFillPathNV = nullptr;
PFNGLSTENCILSTROKEPATHNVPROC glStencilStrokePathNV = nullptr;
PFNGLSTENCILFILLPATHINSTANCEDNVPROC glStencilFillPathInstancedNV = nullptr;
PFNGLSTENCILSTROKEPATHINSTANCEDNVPROC glStencilStrokePathInstancedNV = nullptr;
PFNGLPATHCOVERDEPTHFUNCNVPROC glPathCoverDepthFuncNV = nullptr;
PFNGLCOVERFILLPATHNVPROC glCoverFillPathNV = nullptr;
PFNGLCOVERSTROKEPATHNVPROC glCoverStrokePathNV = nullptr;
PFNGLCOVERFILLPATHINSTANCEDNVPROC glCoverFillPathInstancedNV = nullptr;
PFNGLCOVERSTROKEPATHINSTANCEDNVPROC glCoverStrokePathInstancedNV = nullptr;
PFNGLGETPATHPARAMETERIVNVPROC glGetPathParameterivNV = nullptr;
PFNGLGETPATHPARAMETERFVNVPROC glGetPathParameterfvNV = nullptr;
PFNGLGETPATHCOMMANDSNVPROC glGetPathCommandsNV = nullptr;
PFNGLGETPATHCOORDSNVPROC glGetPathCoordsNV = nullptr;
PFNGLGETPATHDASHARRAYNVPROC glGetPathDashArrayNV = nullptr;
PFNGLGETPATHMETRICSNVPROC glGetPathMetricsNV = nullptr;
PFNGLGETPATHMETRICRANGENVPROC glGetPathMetricRangeNV = nullptr;
PFNGLGETPATHSPACINGNVPROC glGetPathSpacingNV = nullptr;
PFNGLISPOINTINFILLPATHNVPROC glIsPointInFillPathNV = nullptr;
PFNGLISPOINTINSTROKEPATHNVPROC glIsPointInStrokePathNV = nullptr;
PFNGLGETPATHLENGTHNVPROC glGetPathLengthNV = nullptr;
PFNGLPOINTALONGPATHNVPROC glPointAlongPathNV = nullptr;
PFNGLMATRIXLOAD3X2FNVPROC glMatrixLoad3x2fNV = nullptr;
PFNGLMATRIXLOAD3X3FNVPROC glMatrixLoad3x3fNV = nullptr;
PFNGLMATRIXLOADTRANSPOSE3X3FNVPROC glMatrixLoadTranspose3x3fNV = nullptr;
PFNGLMATRIXMULT3X2FNVPROC glMatrixMult3x2fNV = nullptr;
PFNGLMATRIXMULT3X3FNVPROC glMatrixMult3x3fNV = nullptr;
PFNGLMATRIXMULTTRANSPOSE3X3FNVPROC glMatrixMultTranspose3x3fNV = nullptr;
PFNGLSTENCILTHENCOVERFILLPATHNVPROC glStencilThenCoverFillPathNV = nullptr;
PFNGLSTENCILTHENCOVERSTROKEPATHNVPROC glStencilThenCoverStrokePathNV = nullptr;
PFNGLSTENCILTHENCOVERFILLPATHINSTANCEDNVPROC glStencilThenCoverFillPathInstancedNV = nullptr;
PFNGLSTENCILTHENCOVERSTROKEPATHINSTANCEDNVPROC glStencilThenCoverStrokePathInstancedNV = nullptr;
PFNGLPATHGLYPHINDEXRANGENVPROC glPathGlyphIndexRangeNV = nullptr;
PFNGLPATHGLYPHINDEXARRAYNVPROC glPathGlyphIndexArrayNV = nullptr;
PFNGLPATHMEMORYGLYPHINDEXARRAYNVPROC glPathMemoryGlyphIndexArrayNV = nullptr;
PFNGLPROGRAMPATHFRAGMENTINPUTGENNVPROC glProgramPathFragmentInputGenNV = nullptr;
PFNGLGETPROGRAMRESOURCEFVNVPROC glGetProgramResourcefvNV = nullptr;
PFNGLPATHCOLORGENNVPROC glPathColorGenNV = nullptr;
PFNGLPATHTEXGENNVPROC glPathTexGenNV = nullptr;
PFNGLPATHFOGGENNVPROC glPathFogGenNV = nullptr;
PFNGLGETPATHCOLORGENIVNVPROC glGetPathColorGenivNV = nullptr;
PFNGLGETPATHCOLORGENFVNVPROC glGetPathColorGenfvNV = nullptr;
PFNGLGETPATHTEXGENIVNVPROC glGetPathTexGenivNV = nullptr;
PFNGLGETPATHTEXGENFVNVPROC glGetPathTexGenfvNV = nullptr;
PFNGLPIXELDATARANGENVPROC glPixelDataRangeNV = nullptr;
PFNGLFLUSHPIXELDATARANGENVPROC glFlushPixelDataRangeNV = nullptr;
PFNGLPOINTPARAMETERINVPROC glPointParameteriNV = nullptr;
PFNGLPOINTPARAMETERIVNVPROC glPointParameterivNV = nullptr;
PFNGLPRESENTFRAMEKEYEDNVPROC glPresentFrameKeyedNV = nullptr;
PFNGLPRESENTFRAMEDUALFILLNVPROC glPresentFrameDualFillNV = nullptr;
PFNGLGETVIDEOIVNVPROC glGetVideoivNV = nullptr;
PFNGLGETVIDEOUIVNVPROC glGetVideouivNV = nullptr;
PFNGLGETVIDEOI64VNVPROC glGetVideoi64vNV = nullptr;
PFNGLGETVIDEOUI64VNVPROC glGetVideoui64vNV = nullptr;
PFNGLPRIMITIVERESTARTNVPROC glPrimitiveRestartNV = nullptr;
PFNGLPRIMITIVERESTARTINDEXNVPROC glPrimitiveRestartIndexNV = nullptr;
PFNGLQUERYRESOURCENVPROC glQueryResourceNV = nullptr;
PFNGLGENQUERYRESOURCETAGNVPROC glGenQueryResourceTagNV = nullptr;
PFNGLDELETEQUERYRESOURCETAGNVPROC glDeleteQueryResourceTagNV = nullptr;
PFNGLQUERYRESOURCETAGNVPROC glQueryResourceTagNV = nullptr;
PFNGLCOMBINERPARAMETERFVNVPROC glCombinerParameterfvNV = nullptr;
PFNGLCOMBINERPARAMETERFNVPROC glCombinerParameterfNV = nullptr;
PFNGLCOMBINERPARAMETERIVNVPROC glCombinerParameterivNV = nullptr;
PFNGLCOMBINERPARAMETERINVPROC glCombinerParameteriNV = nullptr;
PFNGLCOMBINERINPUTNVPROC glCombinerInputNV = nullptr;
PFNGLCOMBINEROUTPUTNVPROC glCombinerOutputNV = nullptr;
PFNGLFINALCOMBINERINPUTNVPROC glFinalCombinerInputNV = nullptr;
PFNGLGETCOMBINERINPUTPARAMETERFVNVPROC glGetCombinerInputParameterfvNV = nullptr;
PFNGLGETCOMBINERINPUTPARAMETERIVNVPROC glGetCombinerInputParameterivNV = nullptr;
PFNGLGETCOMBINEROUTPUTPARAMETERFVNVPROC glGetCombinerOutputParameterfvNV = nullptr;
PFNGLGETCOMBINEROUTPUTPARAMETERIVNVPROC glGetCombinerOutputParameterivNV = nullptr;
PFNGLGETFINALCOMBINERINPUTPARAMETERFVNVPROC glGetFinalCombinerInputParameterfvNV = nullptr;
PFNGLGETFINALCOMBINERINPUTPARAMETERIVNVPROC glGetFinalCombinerInputParameterivNV = nullptr;
PFNGLCOMBINERSTAGEPARAMETERFVNVPROC glCombinerStageParameterfvNV = nullptr;
PFNGLGETCOMBINERSTAGEPARAMETERFVNVPROC glGetCombinerStageParameterfvNV = nullptr;
PFNGLFRAMEBUFFERSAMPLELOCATIONSFVNVPROC glFramebufferSampleLocationsfvNV = nullptr;
PFNGLNAMEDFRAMEBUFFERSAMPLELOCATIONSFVNVPROC glNamedFramebufferSampleLocationsfvNV = nullptr;
PFNGLRESOLVEDEPTHVALUESNVPROC glResolveDepthValuesNV = nullptr;
PFNGLSCISSOREXCLUSIVENVPROC glScissorExclusiveNV = nullptr;
PFNGLSCISSOREXCLUSIVEARRAYVNVPROC glScissorExclusiveArrayvNV = nullptr;
PFNGLMAKEBUFFERRESIDENTNVPROC glMakeBufferResidentNV = nullptr;
PFNGLMAKEBUFFERNONRESIDENTNVPROC glMakeBufferNonResidentNV = nullptr;
PFNGLISBUFFERRESIDENTNVPROC glIsBufferResidentNV = nullptr;
PFNGLMAKENAMEDBUFFERRESIDENTNVPROC glMakeNamedBufferResidentNV = nullptr;
PFNGLMAKENAMEDBUFFERNONRESIDENTNVPROC glMakeNamedBufferNonResidentNV = nullptr;
PFNGLISNAMEDBUFFERRESIDENTNVPROC glIsNamedBufferResidentNV = nullptr;
PFNGLGETBUFFERPARAMETERUI64VNVPROC glGetBufferParameterui64vNV = nullptr;
PFNGLGETNAMEDBUFFERPARAMETERUI64VNVPROC glGetNamedBufferParameterui64vNV = nullptr;
PFNGLGETINTEGERUI64VNVPROC glGetIntegerui64vNV = nullptr;
PFNGLUNIFORMUI64NVPROC glUniformui64NV = nullptr;
PFNGLUNIFORMUI64VNVPROC glUniformui64vNV = nullptr;
PFNGLPROGRAMUNIFORMUI64NVPROC glProgramUniformui64NV = nullptr;
PFNGLPROGRAMUNIFORMUI64VNVPROC glProgramUniformui64vNV = nullptr;
PFNGLBINDSHADINGRATEIMAGENVPROC glBindShadingRateImageNV = nullptr;
PFNGLGETSHADINGRATEIMAGEPALETTENVPROC glGetShadingRateImagePaletteNV = nullptr;
PFNGLGETSHADINGRATESAMPLELOCATIONIVNVPROC glGetShadingRateSampleLocationivNV = nullptr;
PFNGLSHADINGRATEIMAGEBARRIERNVPROC glShadingRateImageBarrierNV = nullptr;
PFNGLSHADINGRATEIMAGEPALETTENVPROC glShadingRateImagePaletteNV = nullptr;
PFNGLSHADINGRATESAMPLEORDERNVPROC glShadingRateSampleOrderNV = nullptr;
PFNGLSHADINGRATESAMPLEORDERCUSTOMNVPROC glShadingRateSampleOrderCustomNV = nullptr;
PFNGLTEXTUREBARRIERNVPROC glTextureBarrierNV = nullptr;
PFNGLTEXIMAGE2DMULTISAMPLECOVERAGENVPROC glTexImage2DMultisampleCoverageNV = nullptr;
PFNGLTEXIMAGE3DMULTISAMPLECOVERAGENVPROC glTexImage3DMultisampleCoverageNV = nullptr;
PFNGLTEXTUREIMAGE2DMULTISAMPLENVPROC glTextureImage2DMultisampleNV = nullptr;
PFNGLTEXTUREIMAGE3DMULTISAMPLENVPROC glTextureImage3DMultisampleNV = nullptr;
PFNGLTEXTUREIMAGE2DMULTISAMPLECOVERAGENVPROC glTextureImage2DMultisampleCoverageNV = nullptr;
PFNGLTEXTUREIMAGE3DMULTISAMPLECOVERAGENVPROC glTextureImage3DMultisampleCoverageNV = nullptr;
PFNGLCREATESEMAPHORESNVPROC glCreateSemaphoresNV = nullptr;
PFNGLSEMAPHOREPARAMETERIVNVPROC glSemaphoreParameterivNV = nullptr;
PFNGLGETSEMAPHOREPARAMETERIVNVPROC glGetSemaphoreParameterivNV = nullptr;
PFNGLBEGINTRANSFORMFEEDBACKNVPROC glBeginTransformFeedbackNV = nullptr;
PFNGLENDTRANSFORMFEEDBACKNVPROC glEndTransformFeedbackNV = nullptr;
PFNGLTRANSFORMFEEDBACKATTRIBSNVPROC glTransformFeedbackAttribsNV = nullptr;
PFNGLBINDBUFFERRANGENVPROC glBindBufferRangeNV = nullptr;
PFNGLBINDBUFFEROFFSETNVPROC glBindBufferOffsetNV = nullptr;
PFNGLBINDBUFFERBASENVPROC glBindBufferBaseNV = nullptr;
PFNGLTRANSFORMFEEDBACKVARYINGSNVPROC glTransformFeedbackVaryingsNV = nullptr;
PFNGLACTIVEVARYINGNVPROC glActiveVaryingNV = nullptr;
PFNGLGETVARYINGLOCATIONNVPROC glGetVaryingLocationNV = nullptr;
PFNGLGETACTIVEVARYINGNVPROC glGetActiveVaryingNV = nullptr;
PFNGLGETTRANSFORMFEEDBACKVARYINGNVPROC glGetTransformFeedbackVaryingNV = nullptr;
PFNGLTRANSFORMFEEDBACKSTREAMATTRIBSNVPROC glTransformFeedbackStreamAttribsNV = nullptr;
PFNGLBINDTRANSFORMFEEDBACKNVPROC glBindTransformFeedbackNV = nullptr;
PFNGLDELETETRANSFORMFEEDBACKSNVPROC glDeleteTransformFeedbacksNV = nullptr;
PFNGLGENTRANSFORMFEEDBACKSNVPROC glGenTransformFeedbacksNV = nullptr;
PFNGLISTRANSFORMFEEDBACKNVPROC glIsTransformFeedbackNV = nullptr;
PFNGLPAUSETRANSFORMFEEDBACKNVPROC glPauseTransformFeedbackNV = nullptr;
PFNGLRESUMETRANSFORMFEEDBACKNVPROC glResumeTransformFeedbackNV = nullptr;
PFNGLDRAWTRANSFORMFEEDBACKNVPROC glDrawTransformFeedbackNV = nullptr;
PFNGLVDPAUINITNVPROC glVDPAUInitNV = nullptr;
PFNGLVDPAUFININVPROC glVDPAUFiniNV = nullptr;
PFNGLVDPAUREGISTERVIDEOSURFACENVPROC glVDPAURegisterVideoSurfaceNV = nullptr;
PFNGLVDPAUREGISTEROUTPUTSURFACENVPROC glVDPAURegisterOutputSurfaceNV = nullptr;
PFNGLVDPAUISSURFACENVPROC glVDPAUIsSurfaceNV = nullptr;
PFNGLVDPAUUNREGISTERSURFACENVPROC glVDPAUUnregisterSurfaceNV = nullptr;
PFNGLVDPAUGETSURFACEIVNVPROC glVDPAUGetSurfaceivNV = nullptr;
PFNGLVDPAUSURFACEACCESSNVPROC glVDPAUSurfaceAccessNV = nullptr;
PFNGLVDPAUMAPSURFACESNVPROC glVDPAUMapSurfacesNV = nullptr;
PFNGLVDPAUUNMAPSURFACESNVPROC glVDPAUUnmapSurfacesNV = nullptr;
PFNGLVDPAUREGISTERVIDEOSURFACEWITHPICTURESTRUCTURENVPROC glVDPAURegisterVideoSurfaceWithPictureStructureNV = nullptr;
PFNGLFLUSHVERTEXARRAYRANGENVPROC glFlushVertexArrayRangeNV = nullptr;
PFNGLVERTEXARRAYRANGENVPROC glVertexArrayRangeNV = nullptr;
PFNGLVERTEXATTRIBL1I64NVPROC glVertexAttribL1i64NV = nullptr;
PFNGLVERTEXATTRIBL2I64NVPROC glVertexAttribL2i64NV = nullptr;
PFNGLVERTEXATTRIBL3I64NVPROC glVertexAttribL3i64NV = nullptr;
PFNGLVERTEXATTRIBL4I64NVPROC glVertexAttribL4i64NV = nullptr;
PFNGLVERTEXATTRIBL1I64VNVPROC glVertexAttribL1i64vNV = nullptr;
PFNGLVERTEXATTRIBL2I64VNVPROC glVertexAttribL2i64vNV = nullptr;
PFNGLVERTEXATTRIBL3I64VNVPROC glVertexAttribL3i64vNV = nullptr;
PFNGLVERTEXATTRIBL4I64VNVPROC glVertexAttribL4i64vNV = nullptr;
PFNGLVERTEXATTRIBL1UI64NVPROC glVertexAttribL1ui64NV = nullptr;
PFNGLVERTEXATTRIBL2UI64NVPROC glVertexAttribL2ui64NV = nullptr;
PFNGLVERTEXATTRIBL3UI64NVPROC glVertexAttribL3ui64NV = nullptr;
PFNGLVERTEXATTRIBL4UI64NVPROC glVertexAttribL4ui64NV = nullptr;
PFNGLVERTEXATTRIBL1UI64VNVPROC glVertexAttribL1ui64vNV = nullptr;
PFNGLVERTEXATTRIBL2UI64VNVPROC glVertexAttribL2ui64vNV = nullptr;
PFNGLVERTEXATTRIBL3UI64VNVPROC glVertexAttribL3ui64vNV = nullptr;
PFNGLVERTEXATTRIBL4UI64VNVPROC glVertexAttribL4ui64vNV = nullptr;
PFNGLGETVERTEXATTRIBLI64VNVPROC glGetVertexAttribLi64vNV = nullptr;
PFNGLGETVERTEXATTRIBLUI64VNVPROC glGetVertexAttribLui64vNV = nullptr;
PFNGLVERTEXATTRIBLFORMATNVPROC glVertexAttribLFormatNV = nullptr;
PFNGLBUFFERADDRESSRANGENVPROC glBufferAddressRangeNV = nullptr;
PFNGLVERTEXFORMATNVPROC glVertexFormatNV = nullptr;
PFNGLNORMALFORMATNVPROC glNormalFormatNV = nullptr;
PFNGLCOLORFORMATNVPROC glColorFormatNV = nullptr;
PFNGLINDEXFORMATNVPROC glIndexFormatNV = nullptr;
PFNGLTEXCOORDFORMATNVPROC glTexCoordFormatNV = nullptr;
PFNGLEDGEFLAGFORMATNVPROC glEdgeFlagFormatNV = nullptr;
PFNGLSECONDARYCOLORFORMATNVPROC glSecondaryColorFormatNV = nullptr;
PFNGLFOGCOORDFORMATNVPROC glFogCoordFormatNV = nullptr;
PFNGLVERTEXATTRIBFORMATNVPROC glVertexAttribFormatNV = nullptr;
PFNGLVERTEXATTRIBIFORMATNVPROC glVertexAttribIFormatNV = nullptr;
PFNGLGETINTEGERUI64I_VNVPROC glGetIntegerui64i_vNV = nullptr;
PFNGLAREPROGRAMSRESIDENTNVPROC glAreProgramsResidentNV = nullptr;
PFNGLBINDPROGRAMNVPROC glBindProgramNV = nullptr;
PFNGLDELETEPROGRAMSNVPROC glDeleteProgramsNV = nullptr;
PFNGLEXECUTEPROGRAMNVPROC glExecuteProgramNV = nullptr;
PFNGLGENPROGRAMSNVPROC glGenProgramsNV = nullptr;
PFNGLGETPROGRAMPARAMETERDVNVPROC glGetProgramParameterdvNV = nullptr;
PFNGLGETPROGRAMPARAMETERFVNVPROC glGetProgramParameterfvNV = nullptr;
PFNGLGETPROGRAMIVNVPROC glGetProgramivNV = nullptr;
PFNGLGETPROGRAMSTRINGNVPROC glGetProgramStringNV = nullptr;
PFNGLGETTRACKMATRIXIVNVPROC glGetTrackMatrixivNV = nullptr;
PFNGLGETVERTEXATTRIBDVNVPROC glGetVertexAttribdvNV = nullptr;
PFNGLGETVERTEXATTRIBFVNVPROC glGetVertexAttribfvNV = nullptr;
PFNGLGETVERTEXATTRIBIVNVPROC glGetVertexAttribivNV = nullptr;
PFNGLGETVERTEXATTRIBPOINTERVNVPROC glGetVertexAttribPointervNV = nullptr;
PFNGLISPROGRAMNVPROC glIsProgramNV = nullptr;
PFNGLLOADPROGRAMNVPROC glLoadProgramNV = nullptr;
PFNGLPROGRAMPARAMETER4DNVPROC glProgramParameter4dNV = nullptr;
PFNGLPROGRAMPARAMETER4DVNVPROC glProgramParameter4dvNV = nullptr;
PFNGLPROGRAMPARAMETER4FNVPROC glProgramParameter4fNV = nullptr;
PFNGLPROGRAMPARAMETER4FVNVPROC glProgramParameter4fvNV = nullptr;
PFNGLPROGRAMPARAMETERS4DVNVPROC glProgramParameters4dvNV = nullptr;
PFNGLPROGRAMPARAMETERS4FVNVPROC glProgramParameters4fvNV = nullptr;
PFNGLREQUESTRESIDENTPROGRAMSNVPROC glRequestResidentProgramsNV = nullptr;
PFNGLTRACKMATRIXNVPROC glTrackMatrixNV = nullptr;
PFNGLVERTEXATTRIBPOINTERNVPROC glVertexAttribPointerNV = nullptr;
PFNGLVERTEXATTRIB1DNVPROC glVertexAttrib1dNV = nullptr;
PFNGLVERTEXATTRIB1DVNVPROC glVertexAttrib1dvNV = nullptr;
PFNGLVERTEXATTRIB1FNVPROC glVertexAttrib1fNV = nullptr;
PFNGLVERTEXATTRIB1FVNVPROC glVertexAttrib1fvNV = nullptr;
PFNGLVERTEXATTRIB1SNVPROC glVertexAttrib1sNV = nullptr;
PFNGLVERTEXATTRIB1SVNVPROC glVertexAttrib1svNV = nullptr;
PFNGLVERTEXATTRIB2DNVPROC glVertexAttrib2dNV = nullptr;
PFNGLVERTEXATTRIB2DVNVPROC glVertexAttrib2dvNV = nullptr;
PFNGLVERTEXATTRIB2FNVPROC glVertexAttrib2fNV = nullptr;
PFNGLVERTEXATTRIB2FVNVPROC glVertexAttrib2fvNV = nullptr;
PFNGLVERTEXATTRIB2SNVPROC glVertexAttrib2sNV = nullptr;
PFNGLVERTEXATTRIB2SVNVPROC glVertexAttrib2svNV = nullptr;
PFNGLVERTEXATTRIB3DNVPROC glVertexAttrib3dNV = nullptr;
PFNGLVERTEXATTRIB3DVNVPROC glVertexAttrib3dvNV = nullptr;
PFNGLVERTEXATTRIB3FNVPROC glVertexAttrib3fNV = nullptr;
PFNGLVERTEXATTRIB3FVNVPROC glVertexAttrib3fvNV = nullptr;
PFNGLVERTEXATTRIB3SNVPROC glVertexAttrib3sNV = nullptr;
PFNGLVERTEXATTRIB3SVNVPROC glVertexAttrib3svNV = nullptr;
PFNGLVERTEXATTRIB4DNVPROC glVertexAttrib4dNV = nullptr;
PFNGLVERTEXATTRIB4DVNVPROC glVertexAttrib4dvNV = nullptr;
PFNGLVERTEXATTRIB4FNVPROC glVertexAttrib4fNV = nullptr;
PFNGLVERTEXATTRIB4FVNVPROC glVertexAttrib4fvNV = nullptr;
PFNGLVERTEXATTRIB4SNVPROC glVertexAttrib4sNV = nullptr;
PFNGLVERTEXATTRIB4SVNVPROC glVertexAttrib4svNV = nullptr;
PFNGLVERTEXATTRIB4UBNVPROC glVertexAttrib4ubNV = nullptr;
PFNGLVERTEXATTRIB4UBVNVPROC glVertexAttrib4ubvNV = nullptr;
PFNGLVERTEXATTRIBS1DVNVPROC glVertexAttribs1dvNV = nullptr;
PFNGLVERTEXATTRIBS1FVNVPROC glVertexAttribs1fvNV = nullptr;
PFNGLVERTEXATTRIBS1SVNVPROC glVertexAttribs1svNV = nullptr;
PFNGLVERTEXATTRIBS2DVNVPROC glVertexAttribs2dvNV = nullptr;
PFNGLVERTEXATTRIBS2FVNVPROC glVertexAttribs2fvNV = nullptr;
PFNGLVERTEXATTRIBS2SVNVPROC glVertexAttribs2svNV = nullptr;
PFNGLVERTEXATTRIBS3DVNVPROC glVertexAttribs3dvNV = nullptr;
PFNGLVERTEXATTRIBS3FVNVPROC glVertexAttribs3fvNV = nullptr;
PFNGLVERTEXATTRIBS3SVNVPROC glVertexAttribs3svNV = nullptr;
PFNGLVERTEXATTRIBS4DVNVPROC glVertexAttribs4dvNV = nullptr;
PFNGLVERTEXATTRIBS4FVNVPROC glVertexAttribs4fvNV = nullptr;
PFNGLVERTEXATTRIBS4SVNVPROC glVertexAttribs4svNV = nullptr;
PFNGLVERTEXATTRIBS4UBVNVPROC glVertexAttribs4ubvNV = nullptr;
PFNGLBEGINVIDEOCAPTURENVPROC glBeginVideoCaptureNV = nullptr;
PFNGLBINDVIDEOCAPTURESTREAMBUFFERNVPROC glBindVideoCaptureStreamBufferNV = nullptr;
PFNGLBINDVIDEOCAPTURESTREAMTEXTURENVPROC glBindVideoCaptureStreamTextureNV = nullptr;
PFNGLENDVIDEOCAPTURENVPROC glEndVideoCaptureNV = nullptr;
PFNGLGETVIDEOCAPTUREIVNVPROC glGetVideoCaptureivNV = nullptr;
PFNGLGETVIDEOCAPTURESTREAMIVNVPROC glGetVideoCaptureStreamivNV = nullptr;
PFNGLGETVIDEOCAPTURESTREAMFVNVPROC glGetVideoCaptureStreamfvNV = nullptr;
PFNGLGETVIDEOCAPTURESTREAMDVNVPROC glGetVideoCaptureStreamdvNV = nullptr;
PFNGLVIDEOCAPTURENVPROC glVideoCaptureNV = nullptr;
PFNGLVIDEOCAPTURESTREAMPARAMETERIVNVPROC glVideoCaptureStreamParameterivNV = nullptr;
PFNGLVIDEOCAPTURESTREAMPARAMETERFVNVPROC glVideoCaptureStreamParameterfvNV = nullptr;
PFNGLVIDEOCAPTURESTREAMPARAMETERDVNVPROC glVideoCaptureStreamParameterdvNV = nullptr;
PFNGLVIEWPORTSWIZZLENVPROC glViewportSwizzleNV = nullptr;

std::int32_t is_GL_NVX_blend_equation_advanced_multi_draw_buffers_supported = 0;
std::int32_t is_GL_NVX_conditional_render_supported = 0;
std::int32_t is_GL_NVX_gpu_memory_info_supported = 0;
std::int32_t is_GL_NVX_gpu_multicast2_supported = 0;
std::int32_t is_GL_NVX_linked_gpu_multicast_supported = 0;
std::int32_t is_GL_NVX_progress_fence_supported = 0;
std::int32_t is_GL_NV_alpha_to_coverage_dither_control_supported = 0;
std::int32_t is_GL_NV_bindless_multi_draw_indirect_supported = 0;
std::int32_t is_GL_NV_bindless_multi_draw_indirect_count_supported = 0;
std::int32_t is_GL_NV_bindless_texture_supported = 0;
std::int32_t is_GL_NV_blend_equation_advanced_supported = 0;
std::int32_t is_GL_NV_blend_equation_advanced_coherent_supported = 0;
std::int32_t is_GL_NV_blend_minmax_factor_supported = 0;
std::int32_t is_GL_NV_blend_square_supported = 0;
std::int32_t is_GL_NV_clip_space_w_scaling_supported = 0;
std::int32_t is_GL_NV_command_list_supported = 0;
std::int32_t is_GL_NV_compute_program5_supported = 0;
std::int32_t is_GL_NV_compute_shader_derivatives_supported = 0;
std::int32_t is_GL_NV_conditional_render_supported = 0;
std::int32_t is_GL_NV_conservative_raster_supported = 0;
std::int32_t is_GL_NV_conservative_raster_dilate_supported = 0;
std::int32_t is_GL_NV_conservative_raster_pre_snap_supported = 0;
std::int32_t is_GL_NV_conservative_raster_pre_snap_triangles_supported = 0;
std::int32_t is_GL_NV_conservative_raster_underestimation_supported = 0;
std::int32_t is_GL_NV_copy_depth_to_color_supported = 0;
std::int32_t is_GL_NV_copy_image_supported = 0;
std::int32_t is_GL_NV_deep_texture3D_supported = 0;
std::int32_t is_GL_NV_depth_buffer_float_supported = 0;
std::int32_t is_GL_NV_depth_clamp_supported = 0;
std::int32_t is_GL_NV_draw_texture_supported = 0;
std::int32_t is_GL_NV_draw_vulkan_image_supported = 0;
std::int32_t is_GL_NV_evaluators_supported = 0;
std::int32_t is_GL_NV_explicit_multisample_supported = 0;
std::int32_t is_GL_NV_fence_supported = 0;
std::int32_t is_GL_NV_fill_rectangle_supported = 0;
std::int32_t is_GL_NV_float_buffer_supported = 0;
std::int32_t is_GL_NV_fog_distance_supported = 0;
std::int32_t is_GL_NV_fragment_coverage_to_color_supported = 0;
std::int32_t is_GL_NV_fragment_program_supported = 0;
std::int32_t is_GL_NV_fragment_program2_supported = 0;
std::int32_t is_GL_NV_fragment_program4_supported = 0;
std::int32_t is_GL_NV_fragment_program_option_supported = 0;
std::int32_t is_GL_NV_fragment_shader_barycentric_supported = 0;
std::int32_t is_GL_NV_fragment_shader_interlock_supported = 0;
std::int32_t is_GL_NV_framebuffer_mixed_samples_supported = 0;
std::int32_t is_GL_NV_framebuffer_multisample_coverage_supported = 0;
std::int32_t is_GL_NV_geometry_program4_supported = 0;
std::int32_t is_GL_NV_geometry_shader4_supported = 0;
std::int32_t is_GL_NV_geometry_shader_passthrough_supported = 0;
std::int32_t is_GL_NV_gpu_multicast_supported = 0;
std::int32_t is_GL_NV_gpu_program4_supported = 0;
std::int32_t is_GL_NV_gpu_program5_supported = 0;
std::int32_t is_GL_NV_gpu_program5_mem_extended_supported = 0;
std::int32_t is_GL_NV_gpu_shader5_supported = 0;
std::int32_t is_GL_NV_half_float_supported = 0;
std::int32_t is_GL_NV_internalformat_sample_query_supported = 0;
std::int32_t is_GL_NV_light_max_exponent_supported = 0;
std::int32_t is_GL_NV_memory_attachment_supported = 0;
std::int32_t is_GL_NV_memory_object_sparse_supported = 0;
std::int32_t is_GL_NV_mesh_shader_supported = 0;
std::int32_t is_GL_NV_multisample_coverage_supported = 0;
std::int32_t is_GL_NV_multisample_filter_hint_supported = 0;
std::int32_t is_GL_NV_occlusion_query_supported = 0;
std::int32_t is_GL_NV_packed_depth_stencil_supported = 0;
std::int32_t is_GL_NV_parameter_buffer_object_supported = 0;
std::int32_t is_GL_NV_parameter_buffer_object2_supported = 0;
std::int32_t is_GL_NV_path_rendering_supported = 0;
std::int32_t is_GL_NV_path_rendering_shared_edge_supported = 0;
std::int32_t is_GL_NV_pixel_data_range_supported = 0;
std::int32_t is_GL_NV_point_sprite_supported = 0;
std::int32_t is_GL_NV_present_video_supported = 0;
std::int32_t is_GL_NV_primitive_restart_supported = 0;
std::int32_t is_GL_NV_primitive_shading_rate_supported = 0;
std::int32_t is_GL_NV_query_resource_supported = 0;
std::int32_t is_GL_NV_query_resource_tag_supported = 0;
std::int32_t is_GL_NV_register_combiners_supported = 0;
std::int32_t is_GL_NV_register_combiners2_supported = 0;
std::int32_t is_GL_NV_representative_fragment_test_supported = 0;
std::int32_t is_GL_NV_robustness_video_memory_purge_supported = 0;
std::int32_t is_GL_NV_sample_locations_supported = 0;
std::int32_t is_GL_NV_sample_mask_override_coverage_supported = 0;
std::int32_t is_GL_NV_scissor_exclusive_supported = 0;
std::int32_t is_GL_NV_shader_atomic_counters_supported = 0;
std::int32_t is_GL_NV_shader_atomic_float_supported = 0;
std::int32_t is_GL_NV_shader_atomic_float64_supported = 0;
std::int32_t is_GL_NV_shader_atomic_fp16_vector_supported = 0;
std::int32_t is_GL_NV_shader_atomic_int64_supported = 0;
std::int32_t is_GL_NV_shader_buffer_load_supported = 0;
std::int32_t is_GL_NV_shader_buffer_store_supported = 0;
std::int32_t is_GL_NV_shader_storage_buffer_object_supported = 0;
std::int32_t is_GL_NV_shader_subgroup_partitioned_supported = 0;
std::int32_t is_GL_NV_shader_texture_footprint_supported = 0;
std::int32_t is_GL_NV_shader_thread_group_supported = 0;
std::int32_t is_GL_NV_shader_thread_shuffle_supported = 0;
std::int32_t is_GL_NV_shading_rate_image_supported = 0;
std::int32_t is_GL_NV_stereo_view_rendering_supported = 0;
std::int32_t is_GL_NV_tessellation_program5_supported = 0;
std::int32_t is_GL_NV_texgen_emboss_supported = 0;
std::int32_t is_GL_NV_texgen_reflection_supported = 0;
std::int32_t is_GL_NV_texture_barrier_supported = 0;
std::int32_t is_GL_NV_texture_compression_vtc_supported = 0;
std::int32_t is_GL_NV_texture_env_combine4_supported = 0;
std::int32_t is_GL_NV_texture_expand_normal_supported = 0;
std::int32_t is_GL_NV_texture_multisample_supported = 0;
std::int32_t is_GL_NV_texture_rectangle_supported = 0;
std::int32_t is_GL_NV_texture_rectangle_compressed_supported = 0;
std::int32_t is_GL_NV_texture_shader_supported = 0;
std::int32_t is_GL_NV_texture_shader2_supported = 0;
std::int32_t is_GL_NV_texture_shader3_supported = 0;
std::int32_t is_GL_NV_timeline_semaphore_supported = 0;
std::int32_t is_GL_NV_transform_feedback_supported = 0;
std::int32_t is_GL_NV_transform_feedback2_supported = 0;
std::int32_t is_GL_NV_uniform_buffer_unified_memory_supported = 0;
std::int32_t is_GL_NV_vdpau_interop_supported = 0;
std::int32_t is_GL_NV_vdpau_interop2_supported = 0;
std::int32_t is_GL_NV_vertex_array_range_supported = 0;
std::int32_t is_GL_NV_vertex_array_range2_supported = 0;
std::int32_t is_GL_NV_vertex_attrib_integer_64bit_supported = 0;
std::int32_t is_GL_NV_vertex_buffer_unified_memory_supported = 0;
std::int32_t is_GL_NV_vertex_program_supported = 0;
std::int32_t is_GL_NV_vertex_program1_1_supported = 0;
std::int32_t is_GL_NV_vertex_program2_supported = 0;
std::int32_t is_GL_NV_vertex_program2_option_supported = 0;
std::int32_t is_GL_NV_vertex_program3_supported = 0;
std::int32_t is_GL_NV_vertex_program4_supported = 0;
std::int32_t is_GL_NV_video_capture_supported = 0;
std::int32_t is_GL_NV_viewport_array2_supported = 0;
std::int32_t is_GL_NV_viewport_swizzle_supported = 0;

void init_GL_NVX_blend_equation_advanced_multi_draw_buffers() {}

void init_GL_NVX_conditional_render() {
    glBeginConditionalRenderNVX = reinterpret_cast<PFNGLBEGINCONDITIONALRENDERNVXPROC>(__gl_GetProcAddress("glBeginConditionalRenderNVX"));
    glEndConditionalRenderNVX = reinterpret_cast<PFNGLENDCONDITIONALRENDERNVXPROC>(__gl_GetProcAddress("glEndConditionalRenderNVX"));
}

void init_GL_NVX_gpu_memory_info() {}

void init_GL_NVX_gpu_multicast2() {
    glUploadGpuMaskNVX = reinterpret_cast<PFNGLUPLOADGPUMASKNVXPROC>(__gl_GetProcAddress("glUploadGpuMaskNVX"));
    glMulticastViewportArrayvNVX = reinterpret_cast<PFNGLMULTICASTVIEWPORTARRAYVNVXPROC>(__gl_GetProcAddress("glMulticastViewportArrayvNVX"));
    glMulticastViewportPositionWScaleNVX = reinterpret_cast<PFNGLMULTICASTVIEWPORTPOSITIONWSCALENVXPROC>(__gl_GetProcAddress("glMulticastViewportPositionWScaleNVX"));
    glMulticastScissorArrayvNVX = reinterpret_cast<PFNGLMULTICASTSCISSORARRAYVNVXPROC>(__gl_GetProcAddress("glMulticastScissorArrayvNVX"));
    glAsyncCopyBufferSubDataNVX = reinterpret_cast<PFNGLASYNCCOPYBUFFERSUBDATANVXPROC>(__gl_GetProcAddress("glAsyncCopyBufferSubDataNVX"));
    glAsyncCopyImageSubDataNVX = reinterpret_cast<PFNGLASYNCCOPYIMAGESUBDATANVXPROC>(__gl_GetProcAddress("glAsyncCopyImageSubDataNVX"));
}

void init_GL_NVX_linked_gpu_multicast() {
    glLGPUNamedBufferSubDataNVX = reinterpret_cast<PFNGLLGPUNAMEDBUFFERSUBDATANVXPROC>(__gl_GetProcAddress("glLGPUNamedBufferSubDataNVX"));
    glLGPUCopyImageSubDataNVX = reinterpret_cast<PFNGLLGPUCOPYIMAGESUBDATANVXPROC>(__gl_GetProcAddress("glLGPUCopyImageSubDataNVX"));
    glLGPUInterlockNVX = reinterpret_cast<PFNGLLGPUINTERLOCKNVXPROC>(__gl_GetProcAddress("glLGPUInterlockNVX"));
}

void init_GL_NVX_progress_fence() {
    glCreateProgressFenceNVX = reinterpret_cast<PFNGLCREATEPROGRESSFENCENVXPROC>(__gl_GetProcAddress("glCreateProgressFenceNVX"));
    glSignalSemaphoreui64NVX = reinterpret_cast<PFNGLSIGNALSEMAPHOREUI64NVXPROC>(__gl_GetProcAddress("glSignalSemaphoreui64NVX"));
    glWaitSemaphoreui64NVX = reinterpret_cast<PFNGLWAITSEMAPHOREUI64NVXPROC>(__gl_GetProcAddress("glWaitSemaphoreui64NVX"));
    glClientWaitSemaphoreui64NVX = reinterpret_cast<PFNGLCLIENTWAITSEMAPHOREUI64NVXPROC>(__gl_GetProcAddress("glClientWaitSemaphoreui64NVX"));
}

void init_GL_NV_alpha_to_coverage_dither_control() {
    glAlphaToCoverageDitherControlNV = reinterpret_cast<PFNGLALPHATOCOVERAGEDITHERCONTROLNVPROC>(__gl_GetProcAddress("glAlphaToCoverageDitherControlNV"));
}

void init_GL_NV_bindless_multi_draw_indirect() {
    glMultiDrawArraysIndirectBindlessNV = reinterpret_cast<PFNGLMULTIDRAWARRAYSINDIRECTBINDLESSNVPROC>(__gl_GetProcAddress("glMultiDrawArraysIndirectBindlessNV"));
    glMultiDrawElementsIndirectBindlessNV = reinterpret_cast<PFNGLMULTIDRAWELEMENTSINDIRECTBINDLESSNVPROC>(__gl_GetProcAddress("glMultiDrawElementsIndirectBindlessNV"));
}

void init_GL_NV_bindless_multi_draw_indirect_count() {
    glMultiDrawArraysIndirectBindlessCountNV = reinterpret_cast<PFNGLMULTIDRAWARRAYSINDIRECTBINDLESSCOUNTNVPROC>(__gl_GetProcAddress("glMultiDrawArraysIndirectBindlessCountNV"));
    glMultiDrawElementsIndirectBindlessCountNV = reinterpret_cast<PFNGLMULTIDRAWELEMENTSINDIRECTBINDLESSCOUNTNVPROC>(__gl_GetProcAddress("glMultiDrawElementsIndirectBindlessCountNV"));
}

void init_GL_NV_bindless_texture() {
    glGetTextureHandleNV = reinterpret_cast<PFNGLGETTEXTUREHANDLENVPROC>(__gl_GetProcAddress("glGetTextureHandleNV"));
    glGetTextureSamplerHandleNV = reinterpret_cast<PFNGLGETTEXTURESAMPLERHANDLENVPROC>(__gl_GetProcAddress("glGetTextureSamplerHandleNV"));
    glMakeTextureHandleResidentNV = reinterpret_cast<PFNGLMAKETEXTUREHANDLERESIDENTNVPROC>(__gl_GetProcAddress("glMakeTextureHandleResidentNV"));
    glMakeTextureHandleNonResidentNV = reinterpret_cast<PFNGLMAKETEXTUREHANDLENONRESIDENTNVPROC>(__gl_GetProcAddress("glMakeTextureHandleNonResidentNV"));
    glGetImageHandleNV = reinterpret_cast<PFNGLGETIMAGEHANDLENVPROC>(__gl_GetProcAddress("glGetImageHandleNV"));
    glMakeImageHandleResidentNV = reinterpret_cast<PFNGLMAKEIMAGEHANDLERESIDENTNVPROC>(__gl_GetProcAddress("glMakeImageHandleResidentNV"));
    glMakeImageHandleNonResidentNV = reinterpret_cast<PFNGLMAKEIMAGEHANDLENONRESIDENTNVPROC>(__gl_GetProcAddress("glMakeImageHandleNonResidentNV"));
    glUniformHandleui64NV = reinterpret_cast<PFNGLUNIFORMHANDLEUI64NVPROC>(__gl_GetProcAddress("glUniformHandleui64NV"));
    glUniformHandleui64vNV = reinterpret_cast<PFNGLUNIFORMHANDLEUI64VNVPROC>(__gl_GetProcAddress("glUniformHandleui64vNV"));
    glProgramUniformHandleui64NV = reinterpret_cast<PFNGLPROGRAMUNIFORMHANDLEUI64NVPROC>(__gl_GetProcAddress("glProgramUniformHandleui64NV"));
    glProgramUniformHandleui64vNV = reinterpret_cast<PFNGLPROGRAMUNIFORMHANDLEUI64VNVPROC>(__gl_GetProcAddress("glProgramUniformHandleui64vNV"));
    glIsTextureHandleResidentNV = reinterpret_cast<PFNGLISTEXTUREHANDLERESIDENTNVPROC>(__gl_GetProcAddress("glIsTextureHandleResidentNV"));
    glIsImageHandleResidentNV = reinterpret_cast<PFNGLISIMAGEHANDLERESIDENTNVPROC>(__gl_GetProcAddress("glIsImageHandleResidentNV"));
}

void init_GL_NV_blend_equation_advanced() {
    glBlendParameteriNV = reinterpret_cast<PFNGLBLENDPARAMETERINVPROC>(__gl_GetProcAddress("glBlendParameteriNV"));
    glBlendBarrierNV = reinterpret_cast<PFNGLBLENDBARRIERNVPROC>(__gl_GetProcAddress("glBlendBarrierNV"));
}

void init_GL_NV_blend_equation_advanced_coherent() {}

void init_GL_NV_blend_minmax_factor() {}

void init_GL_NV_blend_square() {}

void init_GL_NV_clip_space_w_scaling() {
    glViewportPositionWScaleNV = reinterpret_cast<PFNGLVIEWPORTPOSITIONWSCALENVPROC>(__gl_GetProcAddress("glViewportPositionWScaleNV"));
}

void init_GL_NV_command_list() {
    glCreateStatesNV = reinterpret_cast<PFNGLCREATESTATESNVPROC>(__gl_GetProcAddress("glCreateStatesNV"));
    glDeleteStatesNV = reinterpret_cast<PFNGLDELETESTATESNVPROC>(__gl_GetProcAddress("glDeleteStatesNV"));
    glIsStateNV = reinterpret_cast<PFNGLISSTATENVPROC>(__gl_GetProcAddress("glIsStateNV"));
    glStateCaptureNV = reinterpret_cast<PFNGLSTATECAPTURENVPROC>(__gl_GetProcAddress("glStateCaptureNV"));
    glGetCommandHeaderNV = reinterpret_cast<PFNGLGETCOMMANDHEADERNVPROC>(__gl_GetProcAddress("glGetCommandHeaderNV"));
    glGetStageIndexNV = reinterpret_cast<PFNGLGETSTAGEINDEXNVPROC>(__gl_GetProcAddress("glGetStageIndexNV"));
    glDrawCommandsNV = reinterpret_cast<PFNGLDRAWCOMMANDSNVPROC>(__gl_GetProcAddress("glDrawCommandsNV"));
    glDrawCommandsAddressNV = reinterpret_cast<PFNGLDRAWCOMMANDSADDRESSNVPROC>(__gl_GetProcAddress("glDrawCommandsAddressNV"));
    glDrawCommandsStatesNV = reinterpret_cast<PFNGLDRAWCOMMANDSSTATESNVPROC>(__gl_GetProcAddress("glDrawCommandsStatesNV"));
    glDrawCommandsStatesAddressNV = reinterpret_cast<PFNGLDRAWCOMMANDSSTATESADDRESSNVPROC>(__gl_GetProcAddress("glDrawCommandsStatesAddressNV"));
    glCreateCommandListsNV = reinterpret_cast<PFNGLCREATECOMMANDLISTSNVPROC>(__gl_GetProcAddress("glCreateCommandListsNV"));
    glDeleteCommandListsNV = reinterpret_cast<PFNGLDELETECOMMANDLISTSNVPROC>(__gl_GetProcAddress("glDeleteCommandListsNV"));
    glIsCommandListNV = reinterpret_cast<PFNGLISCOMMANDLISTNVPROC>(__gl_GetProcAddress("glIsCommandListNV"));
    glListDrawCommandsStatesClientNV = reinterpret_cast<PFNGLLISTDRAWCOMMANDSSTATESCLIENTNVPROC>(__gl_GetProcAddress("glListDrawCommandsStatesClientNV"));
    glCommandListSegmentsNV = reinterpret_cast<PFNGLCOMMANDLISTSEGMENTSNVPROC>(__gl_GetProcAddress("glCommandListSegmentsNV"));
    glCompileCommandListNV = reinterpret_cast<PFNGLCOMPILECOMMANDLISTNVPROC>(__gl_GetProcAddress("glCompileCommandListNV"));
    glCallCommandListNV = reinterpret_cast<PFNGLCALLCOMMANDLISTNVPROC>(__gl_GetProcAddress("glCallCommandListNV"));
}

void init_GL_NV_compute_program5() {}

void init_GL_NV_compute_shader_derivatives() {}

void init_GL_NV_conditional_render() {
    glBeginConditionalRenderNV = reinterpret_cast<PFNGLBEGINCONDITIONALRENDERNVPROC>(__gl_GetProcAddress("glBeginConditionalRenderNV"));
    glEndConditionalRenderNV = reinterpret_cast<PFNGLENDCONDITIONALRENDERNVPROC>(__gl_GetProcAddress("glEndConditionalRenderNV"));
}

void init_GL_NV_conservative_raster() {
    glSubpixelPrecisionBiasNV = reinterpret_cast<PFNGLSUBPIXELPRECISIONBIASNVPROC>(__gl_GetProcAddress("glSubpixelPrecisionBiasNV"));
}

void init_GL_NV_conservative_raster_dilate() {
    glConservativeRasterParameterfNV = reinterpret_cast<PFNGLCONSERVATIVERASTERPARAMETERFNVPROC>(__gl_GetProcAddress("glConservativeRasterParameterfNV"));
}

void init_GL_NV_conservative_raster_pre_snap() {}

void init_GL_NV_conservative_raster_pre_snap_triangles() {
    glConservativeRasterParameteriNV = reinterpret_cast<PFNGLCONSERVATIVERASTERPARAMETERINVPROC>(__gl_GetProcAddress("glConservativeRasterParameteriNV"));
}

void init_GL_NV_conservative_raster_underestimation() {}

void init_GL_NV_copy_depth_to_color() {}

void init_GL_NV_copy_image() {
    glCopyImageSubDataNV = reinterpret_cast<PFNGLCOPYIMAGESUBDATANVPROC>(__gl_GetProcAddress("glCopyImageSubDataNV"));
}

void init_GL_NV_deep_texture3D() {}

void init_GL_NV_depth_buffer_float() {
    glDepthRangedNV = reinterpret_cast<PFNGLDEPTHRANGEDNVPROC>(__gl_GetProcAddress("glDepthRangedNV"));
    glClearDepthdNV = reinterpret_cast<PFNGLCLEARDEPTHDNVPROC>(__gl_GetProcAddress("glClearDepthdNV"));
    glDepthBoundsdNV = reinterpret_cast<PFNGLDEPTHBOUNDSDNVPROC>(__gl_GetProcAddress("glDepthBoundsdNV"));
}

void init_GL_NV_depth_clamp() {}

void init_GL_NV_draw_texture() {
    glDrawTextureNV = reinterpret_cast<PFNGLDRAWTEXTURENVPROC>(__gl_GetProcAddress("glDrawTextureNV"));
}

void init_GL_NV_draw_vulkan_image() {
    glDrawVkImageNV = reinterpret_cast<PFNGLDRAWVKIMAGENVPROC>(__gl_GetProcAddress("glDrawVkImageNV"));
    glGetVkProcAddrNV = reinterpret_cast<PFNGLGETVKPROCADDRNVPROC>(__gl_GetProcAddress("glGetVkProcAddrNV"));
    glWaitVkSemaphoreNV = reinterpret_cast<PFNGLWAITVKSEMAPHORENVPROC>(__gl_GetProcAddress("glWaitVkSemaphoreNV"));
    glSignalVkSemaphoreNV = reinterpret_cast<PFNGLSIGNALVKSEMAPHORENVPROC>(__gl_GetProcAddress("glSignalVkSemaphoreNV"));
    glSignalVkFenceNV = reinterpret_cast<PFNGLSIGNALVKFENCENVPROC>(__gl_GetProcAddress("glSignalVkFenceNV"));
}

void init_GL_NV_evaluators() {
    glMapControlPointsNV = reinterpret_cast<PFNGLMAPCONTROLPOINTSNVPROC>(__gl_GetProcAddress("glMapControlPointsNV"));
    glMapParameterivNV = reinterpret_cast<PFNGLMAPPARAMETERIVNVPROC>(__gl_GetProcAddress("glMapParameterivNV"));
    glMapParameterfvNV = reinterpret_cast<PFNGLMAPPARAMETERFVNVPROC>(__gl_GetProcAddress("glMapParameterfvNV"));
    glGetMapControlPointsNV = reinterpret_cast<PFNGLGETMAPCONTROLPOINTSNVPROC>(__gl_GetProcAddress("glGetMapControlPointsNV"));
    glGetMapParameterivNV = reinterpret_cast<PFNGLGETMAPPARAMETERIVNVPROC>(__gl_GetProcAddress("glGetMapParameterivNV"));
    glGetMapParameterfvNV = reinterpret_cast<PFNGLGETMAPPARAMETERFVNVPROC>(__gl_GetProcAddress("glGetMapParameterfvNV"));
    glGetMapAttribParameterivNV = reinterpret_cast<PFNGLGETMAPATTRIBPARAMETERIVNVPROC>(__gl_GetProcAddress("glGetMapAttribParameterivNV"));
    glGetMapAttribParameterfvNV = reinterpret_cast<PFNGLGETMAPATTRIBPARAMETERFVNVPROC>(__gl_GetProcAddress("glGetMapAttribParameterfvNV"));
    glEvalMapsNV = reinterpret_cast<PFNGLEVALMAPSNVPROC>(__gl_GetProcAddress("glEvalMapsNV"));
}

void init_GL_NV_explicit_multisample() {
    glGetMultisamplefvNV = reinterpret_cast<PFNGLGETMULTISAMPLEFVNVPROC>(__gl_GetProcAddress("glGetMultisamplefvNV"));
    glSampleMaskIndexedNV = reinterpret_cast<PFNGLSAMPLEMASKINDEXEDNVPROC>(__gl_GetProcAddress("glSampleMaskIndexedNV"));
    glTexRenderbufferNV = reinterpret_cast<PFNGLTEXRENDERBUFFERNVPROC>(__gl_GetProcAddress("glTexRenderbufferNV"));
}

void init_GL_NV_fence() {
    glDeleteFencesNV = reinterpret_cast<PFNGLDELETEFENCESNVPROC>(__gl_GetProcAddress("glDeleteFencesNV"));
    glGenFencesNV = reinterpret_cast<PFNGLGENFENCESNVPROC>(__gl_GetProcAddress("glGenFencesNV"));
    glIsFenceNV = reinterpret_cast<PFNGLISFENCENVPROC>(__gl_GetProcAddress("glIsFenceNV"));
    glTestFenceNV = reinterpret_cast<PFNGLTESTFENCENVPROC>(__gl_GetProcAddress("glTestFenceNV"));
    glGetFenceivNV = reinterpret_cast<PFNGLGETFENCEIVNVPROC>(__gl_GetProcAddress("glGetFenceivNV"));
    glFinishFenceNV = reinterpret_cast<PFNGLFINISHFENCENVPROC>(__gl_GetProcAddress("glFinishFenceNV"));
    glSetFenceNV = reinterpret_cast<PFNGLSETFENCENVPROC>(__gl_GetProcAddress("glSetFenceNV"));
}

void init_GL_NV_fill_rectangle() {}

void init_GL_NV_float_buffer() {}

void init_GL_NV_fog_distance() {}

void init_GL_NV_fragment_coverage_to_color() {
    glFragmentCoverageColorNV = reinterpret_cast<PFNGLFRAGMENTCOVERAGECOLORNVPROC>(__gl_GetProcAddress("glFragmentCoverageColorNV"));
}

void init_GL_NV_fragment_program() {
    glProgramNamedParameter4fNV = reinterpret_cast<PFNGLPROGRAMNAMEDPARAMETER4FNVPROC>(__gl_GetProcAddress("glProgramNamedParameter4fNV"));
    glProgramNamedParameter4fvNV = reinterpret_cast<PFNGLPROGRAMNAMEDPARAMETER4FVNVPROC>(__gl_GetProcAddress("glProgramNamedParameter4fvNV"));
    glProgramNamedParameter4dNV = reinterpret_cast<PFNGLPROGRAMNAMEDPARAMETER4DNVPROC>(__gl_GetProcAddress("glProgramNamedParameter4dNV"));
    glProgramNamedParameter4dvNV = reinterpret_cast<PFNGLPROGRAMNAMEDPARAMETER4DVNVPROC>(__gl_GetProcAddress("glProgramNamedParameter4dvNV"));
    glGetProgramNamedParameterfvNV = reinterpret_cast<PFNGLGETPROGRAMNAMEDPARAMETERFVNVPROC>(__gl_GetProcAddress("glGetProgramNamedParameterfvNV"));
    glGetProgramNamedParameterdvNV = reinterpret_cast<PFNGLGETPROGRAMNAMEDPARAMETERDVNVPROC>(__gl_GetProcAddress("glGetProgramNamedParameterdvNV"));
}

void init_GL_NV_fragment_program2() {}

void init_GL_NV_fragment_program4() {}

void init_GL_NV_fragment_program_option() {}

void init_GL_NV_fragment_shader_barycentric() {}

void init_GL_NV_fragment_shader_interlock() {}

void init_GL_NV_framebuffer_mixed_samples() {
    glCoverageModulationTableNV = reinterpret_cast<PFNGLCOVERAGEMODULATIONTABLENVPROC>(__gl_GetProcAddress("glCoverageModulationTableNV"));
    glGetCoverageModulationTableNV = reinterpret_cast<PFNGLGETCOVERAGEMODULATIONTABLENVPROC>(__gl_GetProcAddress("glGetCoverageModulationTableNV"));
    glCoverageModulationNV = reinterpret_cast<PFNGLCOVERAGEMODULATIONNVPROC>(__gl_GetProcAddress("glCoverageModulationNV"));
}

void init_GL_NV_framebuffer_multisample_coverage() {
    glRenderbufferStorageMultisampleCoverageNV = reinterpret_cast<PFNGLRENDERBUFFERSTORAGEMULTISAMPLECOVERAGENVPROC>(__gl_GetProcAddress("glRenderbufferStorageMultisampleCoverageNV"));
}

void init_GL_NV_geometry_program4() {
    glProgramVertexLimitNV = reinterpret_cast<PFNGLPROGRAMVERTEXLIMITNVPROC>(__gl_GetProcAddress("glProgramVertexLimitNV"));
    glFramebufferTextureEXT = reinterpret_cast<PFNGLFRAMEBUFFERTEXTUREEXTPROC>(__gl_GetProcAddress("glFramebufferTextureEXT"));
    glFramebufferTextureFaceEXT = reinterpret_cast<PFNGLFRAMEBUFFERTEXTUREFACEEXTPROC>(__gl_GetProcAddress("glFramebufferTextureFaceEXT"));
}

void init_GL_NV_geometry_shader4() {}

void init_GL_NV_geometry_shader_passthrough() {}

void init_GL_NV_gpu_multicast() {
    glRenderGpuMaskNV = reinterpret_cast<PFNGLRENDERGPUMASKNVPROC>(__gl_GetProcAddress("glRenderGpuMaskNV"));
    glMulticastBufferSubDataNV = reinterpret_cast<PFNGLMULTICASTBUFFERSUBDATANVPROC>(__gl_GetProcAddress("glMulticastBufferSubDataNV"));
    glMulticastCopyBufferSubDataNV = reinterpret_cast<PFNGLMULTICASTCOPYBUFFERSUBDATANVPROC>(__gl_GetProcAddress("glMulticastCopyBufferSubDataNV"));
    glMulticastCopyImageSubDataNV = reinterpret_cast<PFNGLMULTICASTCOPYIMAGESUBDATANVPROC>(__gl_GetProcAddress("glMulticastCopyImageSubDataNV"));
    glMulticastBlitFramebufferNV = reinterpret_cast<PFNGLMULTICASTBLITFRAMEBUFFERNVPROC>(__gl_GetProcAddress("glMulticastBlitFramebufferNV"));
    glMulticastFramebufferSampleLocationsfvNV = reinterpret_cast<PFNGLMULTICASTFRAMEBUFFERSAMPLELOCATIONSFVNVPROC>(__gl_GetProcAddress("glMulticastFramebufferSampleLocationsfvNV"));
    glMulticastBarrierNV = reinterpret_cast<PFNGLMULTICASTBARRIERNVPROC>(__gl_GetProcAddress("glMulticastBarrierNV"));
    glMulticastWaitSyncNV = reinterpret_cast<PFNGLMULTICASTWAITSYNCNVPROC>(__gl_GetProcAddress("glMulticastWaitSyncNV"));
    glMulticastGetQueryObjectivNV = reinterpret_cast<PFNGLMULTICASTGETQUERYOBJECTIVNVPROC>(__gl_GetProcAddress("glMulticastGetQueryObjectivNV"));
    glMulticastGetQueryObjectuivNV = reinterpret_cast<PFNGLMULTICASTGETQUERYOBJECTUIVNVPROC>(__gl_GetProcAddress("glMulticastGetQueryObjectuivNV"));
    glMulticastGetQueryObjecti64vNV = reinterpret_cast<PFNGLMULTICASTGETQUERYOBJECTI64VNVPROC>(__gl_GetProcAddress("glMulticastGetQueryObjecti64vNV"));
    glMulticastGetQueryObjectui64vNV = reinterpret_cast<PFNGLMULTICASTGETQUERYOBJECTUI64VNVPROC>(__gl_GetProcAddress("glMulticastGetQueryObjectui64vNV"));
}

void init_GL_NV_gpu_program4() {
    glProgramLocalParameterI4iNV = reinterpret_cast<PFNGLPROGRAMLOCALPARAMETERI4INVPROC>(__gl_GetProcAddress("glProgramLocalParameterI4iNV"));
    glProgramLocalParameterI4ivNV = reinterpret_cast<PFNGLPROGRAMLOCALPARAMETERI4IVNVPROC>(__gl_GetProcAddress("glProgramLocalParameterI4ivNV"));
    glProgramLocalParametersI4ivNV = reinterpret_cast<PFNGLPROGRAMLOCALPARAMETERSI4IVNVPROC>(__gl_GetProcAddress("glProgramLocalParametersI4ivNV"));
    glProgramLocalParameterI4uiNV = reinterpret_cast<PFNGLPROGRAMLOCALPARAMETERI4UINVPROC>(__gl_GetProcAddress("glProgramLocalParameterI4uiNV"));
    glProgramLocalParameterI4uivNV = reinterpret_cast<PFNGLPROGRAMLOCALPARAMETERI4UIVNVPROC>(__gl_GetProcAddress("glProgramLocalParameterI4uivNV"));
    glProgramLocalParametersI4uivNV = reinterpret_cast<PFNGLPROGRAMLOCALPARAMETERSI4UIVNVPROC>(__gl_GetProcAddress("glProgramLocalParametersI4uivNV"));
    glProgramEnvParameterI4iNV = reinterpret_cast<PFNGLPROGRAMENVPARAMETERI4INVPROC>(__gl_GetProcAddress("glProgramEnvParameterI4iNV"));
    glProgramEnvParameterI4ivNV = reinterpret_cast<PFNGLPROGRAMENVPARAMETERI4IVNVPROC>(__gl_GetProcAddress("glProgramEnvParameterI4ivNV"));
    glProgramEnvParametersI4ivNV = reinterpret_cast<PFNGLPROGRAMENVPARAMETERSI4IVNVPROC>(__gl_GetProcAddress("glProgramEnvParametersI4ivNV"));
    glProgramEnvParameterI4uiNV = reinterpret_cast<PFNGLPROGRAMENVPARAMETERI4UINVPROC>(__gl_GetProcAddress("glProgramEnvParameterI4uiNV"));
    glProgramEnvParameterI4uivNV = reinterpret_cast<PFNGLPROGRAMENVPARAMETERI4UIVNVPROC>(__gl_GetProcAddress("glProgramEnvParameterI4uivNV"));
    glProgramEnvParametersI4uivNV = reinterpret_cast<PFNGLPROGRAMENVPARAMETERSI4UIVNVPROC>(__gl_GetProcAddress("glProgramEnvParametersI4uivNV"));
    glGetProgramLocalParameterIivNV = reinterpret_cast<PFNGLGETPROGRAMLOCALPARAMETERIIVNVPROC>(__gl_GetProcAddress("glGetProgramLocalParameterIivNV"));
    glGetProgramLocalParameterIuivNV = reinterpret_cast<PFNGLGETPROGRAMLOCALPARAMETERIUIVNVPROC>(__gl_GetProcAddress("glGetProgramLocalParameterIuivNV"));
    glGetProgramEnvParameterIivNV = reinterpret_cast<PFNGLGETPROGRAMENVPARAMETERIIVNVPROC>(__gl_GetProcAddress("glGetProgramEnvParameterIivNV"));
    glGetProgramEnvParameterIuivNV = reinterpret_cast<PFNGLGETPROGRAMENVPARAMETERIUIVNVPROC>(__gl_GetProcAddress("glGetProgramEnvParameterIuivNV"));
}

void init_GL_NV_gpu_program5() {
    glProgramSubroutineParametersuivNV = reinterpret_cast<PFNGLPROGRAMSUBROUTINEPARAMETERSUIVNVPROC>(__gl_GetProcAddress("glProgramSubroutineParametersuivNV"));
    glGetProgramSubroutineParameteruivNV = reinterpret_cast<PFNGLGETPROGRAMSUBROUTINEPARAMETERUIVNVPROC>(__gl_GetProcAddress("glGetProgramSubroutineParameteruivNV"));
}

void init_GL_NV_gpu_program5_mem_extended() {}

void init_GL_NV_gpu_shader5() {}

void init_GL_NV_half_float() {
    glVertex2hNV = reinterpret_cast<PFNGLVERTEX2HNVPROC>(__gl_GetProcAddress("glVertex2hNV"));
    glVertex2hvNV = reinterpret_cast<PFNGLVERTEX2HVNVPROC>(__gl_GetProcAddress("glVertex2hvNV"));
    glVertex3hNV = reinterpret_cast<PFNGLVERTEX3HNVPROC>(__gl_GetProcAddress("glVertex3hNV"));
    glVertex3hvNV = reinterpret_cast<PFNGLVERTEX3HVNVPROC>(__gl_GetProcAddress("glVertex3hvNV"));
    glVertex4hNV = reinterpret_cast<PFNGLVERTEX4HNVPROC>(__gl_GetProcAddress("glVertex4hNV"));
    glVertex4hvNV = reinterpret_cast<PFNGLVERTEX4HVNVPROC>(__gl_GetProcAddress("glVertex4hvNV"));
    glNormal3hNV = reinterpret_cast<PFNGLNORMAL3HNVPROC>(__gl_GetProcAddress("glNormal3hNV"));
    glNormal3hvNV = reinterpret_cast<PFNGLNORMAL3HVNVPROC>(__gl_GetProcAddress("glNormal3hvNV"));
    glColor3hNV = reinterpret_cast<PFNGLCOLOR3HNVPROC>(__gl_GetProcAddress("glColor3hNV"));
    glColor3hvNV = reinterpret_cast<PFNGLCOLOR3HVNVPROC>(__gl_GetProcAddress("glColor3hvNV"));
    glColor4hNV = reinterpret_cast<PFNGLCOLOR4HNVPROC>(__gl_GetProcAddress("glColor4hNV"));
    glColor4hvNV = reinterpret_cast<PFNGLCOLOR4HVNVPROC>(__gl_GetProcAddress("glColor4hvNV"));
    glTexCoord1hNV = reinterpret_cast<PFNGLTEXCOORD1HNVPROC>(__gl_GetProcAddress("glTexCoord1hNV"));
    glTexCoord1hvNV = reinterpret_cast<PFNGLTEXCOORD1HVNVPROC>(__gl_GetProcAddress("glTexCoord1hvNV"));
    glTexCoord2hNV = reinterpret_cast<PFNGLTEXCOORD2HNVPROC>(__gl_GetProcAddress("glTexCoord2hNV"));
    glTexCoord2hvNV = reinterpret_cast<PFNGLTEXCOORD2HVNVPROC>(__gl_GetProcAddress("glTexCoord2hvNV"));
    glTexCoord3hNV = reinterpret_cast<PFNGLTEXCOORD3HNVPROC>(__gl_GetProcAddress("glTexCoord3hNV"));
    glTexCoord3hvNV = reinterpret_cast<PFNGLTEXCOORD3HVNVPROC>(__gl_GetProcAddress("glTexCoord3hvNV"));
    glTexCoord4hNV = reinterpret_cast<PFNGLTEXCOORD4HNVPROC>(__gl_GetProcAddress("glTexCoord4hNV"));
    glTexCoord4hvNV = reinterpret_cast<PFNGLTEXCOORD4HVNVPROC>(__gl_GetProcAddress("glTexCoord4hvNV"));
    glMultiTexCoord1hNV = reinterpret_cast<PFNGLMULTITEXCOORD1HNVPROC>(__gl_GetProcAddress("glMultiTexCoord1hNV"));
    glMultiTexCoord1hvNV = reinterpret_cast<PFNGLMULTITEXCOORD1HVNVPROC>(__gl_GetProcAddress("glMultiTexCoord1hvNV"));
    glMultiTexCoord2hNV = reinterpret_cast<PFNGLMULTITEXCOORD2HNVPROC>(__gl_GetProcAddress("glMultiTexCoord2hNV"));
    glMultiTexCoord2hvNV = reinterpret_cast<PFNGLMULTITEXCOORD2HVNVPROC>(__gl_GetProcAddress("glMultiTexCoord2hvNV"));
    glMultiTexCoord3hNV = reinterpret_cast<PFNGLMULTITEXCOORD3HNVPROC>(__gl_GetProcAddress("glMultiTexCoord3hNV"));
    glMultiTexCoord3hvNV = reinterpret_cast<PFNGLMULTITEXCOORD3HVNVPROC>(__gl_GetProcAddress("glMultiTexCoord3hvNV"));
    glMultiTexCoord4hNV = reinterpret_cast<PFNGLMULTITEXCOORD4HNVPROC>(__gl_GetProcAddress("glMultiTexCoord4hNV"));
    glMultiTexCoord4hvNV = reinterpret_cast<PFNGLMULTITEXCOORD4HVNVPROC>(__gl_GetProcAddress("glMultiTexCoord4hvNV"));
    glFogCoordhNV = reinterpret_cast<PFNGLFOGCOORDHNVPROC>(__gl_GetProcAddress("glFogCoordhNV"));
    glFogCoordhvNV = reinterpret_cast<PFNGLFOGCOORDHVNVPROC>(__gl_GetProcAddress("glFogCoordhvNV"));
    glSecondaryColor3hNV = reinterpret_cast<PFNGLSECONDARYCOLOR3HNVPROC>(__gl_GetProcAddress("glSecondaryColor3hNV"));
    glSecondaryColor3hvNV = reinterpret_cast<PFNGLSECONDARYCOLOR3HVNVPROC>(__gl_GetProcAddress("glSecondaryColor3hvNV"));
    glVertexWeighthNV = reinterpret_cast<PFNGLVERTEXWEIGHTHNVPROC>(__gl_GetProcAddress("glVertexWeighthNV"));
    glVertexWeighthvNV = reinterpret_cast<PFNGLVERTEXWEIGHTHVNVPROC>(__gl_GetProcAddress("glVertexWeighthvNV"));
    glVertexAttrib1hNV = reinterpret_cast<PFNGLVERTEXATTRIB1HNVPROC>(__gl_GetProcAddress("glVertexAttrib1hNV"));
    glVertexAttrib1hvNV = reinterpret_cast<PFNGLVERTEXATTRIB1HVNVPROC>(__gl_GetProcAddress("glVertexAttrib1hvNV"));
    glVertexAttrib2hNV = reinterpret_cast<PFNGLVERTEXATTRIB2HNVPROC>(__gl_GetProcAddress("glVertexAttrib2hNV"));
    glVertexAttrib2hvNV = reinterpret_cast<PFNGLVERTEXATTRIB2HVNVPROC>(__gl_GetProcAddress("glVertexAttrib2hvNV"));
    glVertexAttrib3hNV = reinterpret_cast<PFNGLVERTEXATTRIB3HNVPROC>(__gl_GetProcAddress("glVertexAttrib3hNV"));
    glVertexAttrib3hvNV = reinterpret_cast<PFNGLVERTEXATTRIB3HVNVPROC>(__gl_GetProcAddress("glVertexAttrib3hvNV"));
    glVertexAttrib4hNV = reinterpret_cast<PFNGLVERTEXATTRIB4HNVPROC>(__gl_GetProcAddress("glVertexAttrib4hNV"));
    glVertexAttrib4hvNV = reinterpret_cast<PFNGLVERTEXATTRIB4HVNVPROC>(__gl_GetProcAddress("glVertexAttrib4hvNV"));
    glVertexAttribs1hvNV = reinterpret_cast<PFNGLVERTEXATTRIBS1HVNVPROC>(__gl_GetProcAddress("glVertexAttribs1hvNV"));
    glVertexAttribs2hvNV = reinterpret_cast<PFNGLVERTEXATTRIBS2HVNVPROC>(__gl_GetProcAddress("glVertexAttribs2hvNV"));
    glVertexAttribs3hvNV = reinterpret_cast<PFNGLVERTEXATTRIBS3HVNVPROC>(__gl_GetProcAddress("glVertexAttribs3hvNV"));
    glVertexAttribs4hvNV = reinterpret_cast<PFNGLVERTEXATTRIBS4HVNVPROC>(__gl_GetProcAddress("glVertexAttribs4hvNV"));
}

void init_GL_NV_internalformat_sample_query() {
    glGetInternalformatSampleivNV = reinterpret_cast<PFNGLGETINTERNALFORMATSAMPLEIVNVPROC>(__gl_GetProcAddress("glGetInternalformatSampleivNV"));
}

void init_GL_NV_light_max_exponent() {}

void init_GL_NV_memory_attachment() {
    glGetMemoryObjectDetachedResourcesuivNV = reinterpret_cast<PFNGLGETMEMORYOBJECTDETACHEDRESOURCESUIVNVPROC>(__gl_GetProcAddress("glGetMemoryObjectDetachedResourcesuivNV"));
    glResetMemoryObjectParameterNV = reinterpret_cast<PFNGLRESETMEMORYOBJECTPARAMETERNVPROC>(__gl_GetProcAddress("glResetMemoryObjectParameterNV"));
    glTexAttachMemoryNV = reinterpret_cast<PFNGLTEXATTACHMEMORYNVPROC>(__gl_GetProcAddress("glTexAttachMemoryNV"));
    glBufferAttachMemoryNV = reinterpret_cast<PFNGLBUFFERATTACHMEMORYNVPROC>(__gl_GetProcAddress("glBufferAttachMemoryNV"));
    glTextureAttachMemoryNV = reinterpret_cast<PFNGLTEXTUREATTACHMEMORYNVPROC>(__gl_GetProcAddress("glTextureAttachMemoryNV"));
    glNamedBufferAttachMemoryNV = reinterpret_cast<PFNGLNAMEDBUFFERATTACHMEMORYNVPROC>(__gl_GetProcAddress("glNamedBufferAttachMemoryNV"));
}

void init_GL_NV_memory_object_sparse() {
    glBufferPageCommitmentMemNV = reinterpret_cast<PFNGLBUFFERPAGECOMMITMENTMEMNVPROC>(__gl_GetProcAddress("glBufferPageCommitmentMemNV"));
    glTexPageCommitmentMemNV = reinterpret_cast<PFNGLTEXPAGECOMMITMENTMEMNVPROC>(__gl_GetProcAddress("glTexPageCommitmentMemNV"));
    glNamedBufferPageCommitmentMemNV = reinterpret_cast<PFNGLNAMEDBUFFERPAGECOMMITMENTMEMNVPROC>(__gl_GetProcAddress("glNamedBufferPageCommitmentMemNV"));
    glTexturePageCommitmentMemNV = reinterpret_cast<PFNGLTEXTUREPAGECOMMITMENTMEMNVPROC>(__gl_GetProcAddress("glTexturePageCommitmentMemNV"));
}

void init_GL_NV_mesh_shader() {
    glDrawMeshTasksNV = reinterpret_cast<PFNGLDRAWMESHTASKSNVPROC>(__gl_GetProcAddress("glDrawMeshTasksNV"));
    glDrawMeshTasksIndirectNV = reinterpret_cast<PFNGLDRAWMESHTASKSINDIRECTNVPROC>(__gl_GetProcAddress("glDrawMeshTasksIndirectNV"));
    glMultiDrawMeshTasksIndirectNV = reinterpret_cast<PFNGLMULTIDRAWMESHTASKSINDIRECTNVPROC>(__gl_GetProcAddress("glMultiDrawMeshTasksIndirectNV"));
    glMultiDrawMeshTasksIndirectCountNV = reinterpret_cast<PFNGLMULTIDRAWMESHTASKSINDIRECTCOUNTNVPROC>(__gl_GetProcAddress("glMultiDrawMeshTasksIndirectCountNV"));
}

void init_GL_NV_multisample_coverage() {}

void init_GL_NV_multisample_filter_hint() {}

void init_GL_NV_occlusion_query() {
    glGenOcclusionQueriesNV = reinterpret_cast<PFNGLGENOCCLUSIONQUERIESNVPROC>(__gl_GetProcAddress("glGenOcclusionQueriesNV"));
    glDeleteOcclusionQueriesNV = reinterpret_cast<PFNGLDELETEOCCLUSIONQUERIESNVPROC>(__gl_GetProcAddress("glDeleteOcclusionQueriesNV"));
    glIsOcclusionQueryNV = reinterpret_cast<PFNGLISOCCLUSIONQUERYNVPROC>(__gl_GetProcAddress("glIsOcclusionQueryNV"));
    glBeginOcclusionQueryNV = reinterpret_cast<PFNGLBEGINOCCLUSIONQUERYNVPROC>(__gl_GetProcAddress("glBeginOcclusionQueryNV"));
    glEndOcclusionQueryNV = reinterpret_cast<PFNGLENDOCCLUSIONQUERYNVPROC>(__gl_GetProcAddress("glEndOcclusionQueryNV"));
    glGetOcclusionQueryivNV = reinterpret_cast<PFNGLGETOCCLUSIONQUERYIVNVPROC>(__gl_GetProcAddress("glGetOcclusionQueryivNV"));
    glGetOcclusionQueryuivNV = reinterpret_cast<PFNGLGETOCCLUSIONQUERYUIVNVPROC>(__gl_GetProcAddress("glGetOcclusionQueryuivNV"));
}

void init_GL_NV_packed_depth_stencil() {}

void init_GL_NV_parameter_buffer_object() {
    glProgramBufferParametersfvNV = reinterpret_cast<PFNGLPROGRAMBUFFERPARAMETERSFVNVPROC>(__gl_GetProcAddress("glProgramBufferParametersfvNV"));
    glProgramBufferParametersIivNV = reinterpret_cast<PFNGLPROGRAMBUFFERPARAMETERSIIVNVPROC>(__gl_GetProcAddress("glProgramBufferParametersIivNV"));
    glProgramBufferParametersIuivNV = reinterpret_cast<PFNGLPROGRAMBUFFERPARAMETERSIUIVNVPROC>(__gl_GetProcAddress("glProgramBufferParametersIuivNV"));
}

void init_GL_NV_parameter_buffer_object2() {}

void init_GL_NV_path_rendering() {
    glGenPathsNV = reinterpret_cast<PFNGLGENPATHSNVPROC>(__gl_GetProcAddress("glGenPathsNV"));
    glDeletePathsNV = reinterpret_cast<PFNGLDELETEPATHSNVPROC>(__gl_GetProcAddress("glDeletePathsNV"));
    glIsPathNV = reinterpret_cast<PFNGLISPATHNVPROC>(__gl_GetProcAddress("glIsPathNV"));
    glPathCommandsNV = reinterpret_cast<PFNGLPATHCOMMANDSNVPROC>(__gl_GetProcAddress("glPathCommandsNV"));
    glPathCoordsNV = reinterpret_cast<PFNGLPATHCOORDSNVPROC>(__gl_GetProcAddress("glPathCoordsNV"));
    glPathSubCommandsNV = reinterpret_cast<PFNGLPATHSUBCOMMANDSNVPROC>(__gl_GetProcAddress("glPathSubCommandsNV"));
    glPathSubCoordsNV = reinterpret_cast<PFNGLPATHSUBCOORDSNVPROC>(__gl_GetProcAddress("glPathSubCoordsNV"));
    glPathStringNV = reinterpret_cast<PFNGLPATHSTRINGNVPROC>(__gl_GetProcAddress("glPathStringNV"));
    glPathGlyphsNV = reinterpret_cast<PFNGLPATHGLYPHSNVPROC>(__gl_GetProcAddress("glPathGlyphsNV"));
    glPathGlyphRangeNV = reinterpret_cast<PFNGLPATHGLYPHRANGENVPROC>(__gl_GetProcAddress("glPathGlyphRangeNV"));
    glWeightPathsNV = reinterpret_cast<PFNGLWEIGHTPATHSNVPROC>(__gl_GetProcAddress("glWeightPathsNV"));
    glCopyPathNV = reinterpret_cast<PFNGLCOPYPATHNVPROC>(__gl_GetProcAddress("glCopyPathNV"));
    glInterpolatePathsNV = reinterpret_cast<PFNGLINTERPOLATEPATHSNVPROC>(__gl_GetProcAddress("glInterpolatePathsNV"));
    glTransformPathNV = reinterpret_cast<PFNGLTRANSFORMPATHNVPROC>(__gl_GetProcAddress("glTransformPathNV"));
    glPathParameterivNV = reinterpret_cast<PFNGLPATHPARAMETERIVNVPROC>(__gl_GetProcAddress("glPathParameterivNV"));
    glPathParameteriNV = reinterpret_cast<PFNGLPATHPARAMETERINVPROC>(__gl_GetProcAddress("glPathParameteriNV"));
    glPathParameterfvNV = reinterpret_cast<PFNGLPATHPARAMETERFVNVPROC>(__gl_GetProcAddress("glPathParameterfvNV"));
    glPathParameterfNV = reinterpret_cast<PFNGLPATHPARAMETERFNVPROC>(__gl_GetProcAddress("glPathParameterfNV"));
    glPathDashArrayNV = reinterpret_cast<PFNGLPATHDASHARRAYNVPROC>(__gl_GetProcAddress("glPathDashArrayNV"));
    glPathStencilFuncNV = reinterpret_cast<PFNGLPATHSTENCILFUNCNVPROC>(__gl_GetProcAddress("glPathStencilFuncNV"));
    glPathStencilDepthOffsetNV = reinterpret_cast<PFNGLPATHSTENCILDEPTHOFFSETNVPROC>(__gl_GetProcAddress("glPathStencilDepthOffsetNV"));
    glStencilFillPathNV = reinterpret_cast<PFNGLSTENCILFILLPATHNVPROC>(__gl_GetProcAddress("glStencilFillPathNV"));
    glStencilStrokePathNV = reinterpret_cast<PFNGLSTENCILSTROKEPATHNVPROC>(__gl_GetProcAddress("glStencilStrokePathNV"));
    glStencilFillPathInstancedNV = reinterpret_cast<PFNGLSTENCILFILLPATHINSTANCEDNVPROC>(__gl_GetProcAddress("glStencilFillPathInstancedNV"));
    glStencilStrokePathInstancedNV = reinterpret_cast<PFNGLSTENCILSTROKEPATHINSTANCEDNVPROC>(__gl_GetProcAddress("glStencilStrokePathInstancedNV"));
    glPathCoverDepthFuncNV = reinterpret_cast<PFNGLPATHCOVERDEPTHFUNCNVPROC>(__gl_GetProcAddress("glPathCoverDepthFuncNV"));
    glCoverFillPathNV = reinterpret_cast<PFNGLCOVERFILLPATHNVPROC>(__gl_GetProcAddress("glCoverFillPathNV"));
    glCoverStrokePathNV = reinterpret_cast<PFNGLCOVERSTROKEPATHNVPROC>(__gl_GetProcAddress("glCoverStrokePathNV"));
    glCoverFillPathInstancedNV = reinterpret_cast<PFNGLCOVERFILLPATHINSTANCEDNVPROC>(__gl_GetProcAddress("glCoverFillPathInstancedNV"));
    glCoverStrokePathInstancedNV = reinterpret_cast<PFNGLCOVERSTROKEPATHINSTANCEDNVPROC>(__gl_GetProcAddress("glCoverStrokePathInstancedNV"));
    glGetPathParameterivNV = reinterpret_cast<PFNGLGETPATHPARAMETERIVNVPROC>(__gl_GetProcAddress("glGetPathParameterivNV"));
    glGetPathParameterfvNV = reinterpret_cast<PFNGLGETPATHPARAMETERFVNVPROC>(__gl_GetProcAddress("glGetPathParameterfvNV"));
    glGetPathCommandsNV = reinterpret_cast<PFNGLGETPATHCOMMANDSNVPROC>(__gl_GetProcAddress("glGetPathCommandsNV"));
    glGetPathCoordsNV = reinterpret_cast<PFNGLGETPATHCOORDSNVPROC>(__gl_GetProcAddress("glGetPathCoordsNV"));
    glGetPathDashArrayNV = reinterpret_cast<PFNGLGETPATHDASHARRAYNVPROC>(__gl_GetProcAddress("glGetPathDashArrayNV"));
    glGetPathMetricsNV = reinterpret_cast<PFNGLGETPATHMETRICSNVPROC>(__gl_GetProcAddress("glGetPathMetricsNV"));
    glGetPathMetricRangeNV = reinterpret_cast<PFNGLGETPATHMETRICRANGENVPROC>(__gl_GetProcAddress("glGetPathMetricRangeNV"));
    glGetPathSpacingNV = reinterpret_cast<PFNGLGETPATHSPACINGNVPROC>(__gl_GetProcAddress("glGetPathSpacingNV"));
    glIsPointInFillPathNV = reinterpret_cast<PFNGLISPOINTINFILLPATHNVPROC>(__gl_GetProcAddress("glIsPointInFillPathNV"));
    glIsPointInStrokePathNV = reinterpret_cast<PFNGLISPOINTINSTROKEPATHNVPROC>(__gl_GetProcAddress("glIsPointInStrokePathNV"));
    glGetPathLengthNV = reinterpret_cast<PFNGLGETPATHLENGTHNVPROC>(__gl_GetProcAddress("glGetPathLengthNV"));
    glPointAlongPathNV = reinterpret_cast<PFNGLPOINTALONGPATHNVPROC>(__gl_GetProcAddress("glPointAlongPathNV"));
    glMatrixLoad3x2fNV = reinterpret_cast<PFNGLMATRIXLOAD3X2FNVPROC>(__gl_GetProcAddress("glMatrixLoad3x2fNV"));
    glMatrixLoad3x3fNV = reinterpret_cast<PFNGLMATRIXLOAD3X3FNVPROC>(__gl_GetProcAddress("glMatrixLoad3x3fNV"));
    glMatrixLoadTranspose3x3fNV = reinterpret_cast<PFNGLMATRIXLOADTRANSPOSE3X3FNVPROC>(__gl_GetProcAddress("glMatrixLoadTranspose3x3fNV"));
    glMatrixMult3x2fNV = reinterpret_cast<PFNGLMATRIXMULT3X2FNVPROC>(__gl_GetProcAddress("glMatrixMult3x2fNV"));
    glMatrixMult3x3fNV = reinterpret_cast<PFNGLMATRIXMULT3X3FNVPROC>(__gl_GetProcAddress("glMatrixMult3x3fNV"));
    glMatrixMultTranspose3x3fNV = reinterpret_cast<PFNGLMATRIXMULTTRANSPOSE3X3FNVPROC>(__gl_GetProcAddress("glMatrixMultTranspose3x3fNV"));
    glStencilThenCoverFillPathNV = reinterpret_cast<PFNGLSTENCILTHENCOVERFILLPATHNVPROC>(__gl_GetProcAddress("glStencilThenCoverFillPathNV"));
    glStencilThenCoverStrokePathNV = reinterpret_cast<PFNGLSTENCILTHENCOVERSTROKEPATHNVPROC>(__gl_GetProcAddress("glStencilThenCoverStrokePathNV"));
    glStencilThenCoverFillPathInstancedNV = reinterpret_cast<PFNGLSTENCILTHENCOVERFILLPATHINSTANCEDNVPROC>(__gl_GetProcAddress("glStencilThenCoverFillPathInstancedNV"));
    glStencilThenCoverStrokePathInstancedNV = reinterpret_cast<PFNGLSTENCILTHENCOVERSTROKEPATHINSTANCEDNVPROC>(__gl_GetProcAddress("glStencilThenCoverStrokePathInstancedNV"));
    glPathGlyphIndexRangeNV = reinterpret_cast<PFNGLPATHGLYPHINDEXRANGENVPROC>(__gl_GetProcAddress("glPathGlyphIndexRangeNV"));
    glPathGlyphIndexArrayNV = reinterpret_cast<PFNGLPATHGLYPHINDEXARRAYNVPROC>(__gl_GetProcAddress("glPathGlyphIndexArrayNV"));
    glPathMemoryGlyphIndexArrayNV = reinterpret_cast<PFNGLPATHMEMORYGLYPHINDEXARRAYNVPROC>(__gl_GetProcAddress("glPathMemoryGlyphIndexArrayNV"));
    glProgramPathFragmentInputGenNV = reinterpret_cast<PFNGLPROGRAMPATHFRAGMENTINPUTGENNVPROC>(__gl_GetProcAddress("glProgramPathFragmentInputGenNV"));
    glGetProgramResourcefvNV = reinterpret_cast<PFNGLGETPROGRAMRESOURCEFVNVPROC>(__gl_GetProcAddress("glGetProgramResourcefvNV"));
    glPathColorGenNV = reinterpret_cast<PFNGLPATHCOLORGENNVPROC>(__gl_GetProcAddress("glPathColorGenNV"));
    glPathTexGenNV = reinterpret_cast<PFNGLPATHTEXGENNVPROC>(__gl_GetProcAddress("glPathTexGenNV"));
    glPathFogGenNV = reinterpret_cast<PFNGLPATHFOGGENNVPROC>(__gl_GetProcAddress("glPathFogGenNV"));
    glGetPathColorGenivNV = reinterpret_cast<PFNGLGETPATHCOLORGENIVNVPROC>(__gl_GetProcAddress("glGetPathColorGenivNV"));
    glGetPathColorGenfvNV = reinterpret_cast<PFNGLGETPATHCOLORGENFVNVPROC>(__gl_GetProcAddress("glGetPathColorGenfvNV"));
    glGetPathTexGenivNV = reinterpret_cast<PFNGLGETPATHTEXGENIVNVPROC>(__gl_GetProcAddress("glGetPathTexGenivNV"));
    glGetPathTexGenfvNV = reinterpret_cast<PFNGLGETPATHTEXGENFVNVPROC>(__gl_GetProcAddress("glGetPathTexGenfvNV"));
}

void init_GL_NV_path_rendering_shared_edge() {}

void init_GL_NV_pixel_data_range() {
    glPixelDataRangeNV = reinterpret_cast<PFNGLPIXELDATARANGENVPROC>(__gl_GetProcAddress("glPixelDataRangeNV"));
    glFlushPixelDataRangeNV = reinterpret_cast<PFNGLFLUSHPIXELDATARANGENVPROC>(__gl_GetProcAddress("glFlushPixelDataRangeNV"));
}

void init_GL_NV_point_sprite() {
    glPointParameteriNV = reinterpret_cast<PFNGLPOINTPARAMETERINVPROC>(__gl_GetProcAddress("glPointParameteriNV"));
    glPointParameterivNV = reinterpret_cast<PFNGLPOINTPARAMETERIVNVPROC>(__gl_GetProcAddress("glPointParameterivNV"));
}

void init_GL_NV_present_video() {
    glPresentFrameKeyedNV = reinterpret_cast<PFNGLPRESENTFRAMEKEYEDNVPROC>(__gl_GetProcAddress("glPresentFrameKeyedNV"));
    glPresentFrameDualFillNV = reinterpret_cast<PFNGLPRESENTFRAMEDUALFILLNVPROC>(__gl_GetProcAddress("glPresentFrameDualFillNV"));
    glGetVideoivNV = reinterpret_cast<PFNGLGETVIDEOIVNVPROC>(__gl_GetProcAddress("glGetVideoivNV"));
    glGetVideouivNV = reinterpret_cast<PFNGLGETVIDEOUIVNVPROC>(__gl_GetProcAddress("glGetVideouivNV"));
    glGetVideoi64vNV = reinterpret_cast<PFNGLGETVIDEOI64VNVPROC>(__gl_GetProcAddress("glGetVideoi64vNV"));
    glGetVideoui64vNV = reinterpret_cast<PFNGLGETVIDEOUI64VNVPROC>(__gl_GetProcAddress("glGetVideoui64vNV"));
}

void init_GL_NV_primitive_restart() {
    glPrimitiveRestartNV = reinterpret_cast<PFNGLPRIMITIVERESTARTNVPROC>(__gl_GetProcAddress("glPrimitiveRestartNV"));
    glPrimitiveRestartIndexNV = reinterpret_cast<PFNGLPRIMITIVERESTARTINDEXNVPROC>(__gl_GetProcAddress("glPrimitiveRestartIndexNV"));
}

void init_GL_NV_primitive_shading_rate() {}

void init_GL_NV_query_resource() {
    glQueryResourceNV = reinterpret_cast<PFNGLQUERYRESOURCENVPROC>(__gl_GetProcAddress("glQueryResourceNV"));
}

void init_GL_NV_query_resource_tag() {
    glGenQueryResourceTagNV = reinterpret_cast<PFNGLGENQUERYRESOURCETAGNVPROC>(__gl_GetProcAddress("glGenQueryResourceTagNV"));
    glDeleteQueryResourceTagNV = reinterpret_cast<PFNGLDELETEQUERYRESOURCETAGNVPROC>(__gl_GetProcAddress("glDeleteQueryResourceTagNV"));
    glQueryResourceTagNV = reinterpret_cast<PFNGLQUERYRESOURCETAGNVPROC>(__gl_GetProcAddress("glQueryResourceTagNV"));
}

void init_GL_NV_register_combiners() {
    glCombinerParameterfvNV = reinterpret_cast<PFNGLCOMBINERPARAMETERFVNVPROC>(__gl_GetProcAddress("glCombinerParameterfvNV"));
    glCombinerParameterfNV = reinterpret_cast<PFNGLCOMBINERPARAMETERFNVPROC>(__gl_GetProcAddress("glCombinerParameterfNV"));
    glCombinerParameterivNV = reinterpret_cast<PFNGLCOMBINERPARAMETERIVNVPROC>(__gl_GetProcAddress("glCombinerParameterivNV"));
    glCombinerParameteriNV = reinterpret_cast<PFNGLCOMBINERPARAMETERINVPROC>(__gl_GetProcAddress("glCombinerParameteriNV"));
    glCombinerInputNV = reinterpret_cast<PFNGLCOMBINERINPUTNVPROC>(__gl_GetProcAddress("glCombinerInputNV"));
    glCombinerOutputNV = reinterpret_cast<PFNGLCOMBINEROUTPUTNVPROC>(__gl_GetProcAddress("glCombinerOutputNV"));
    glFinalCombinerInputNV = reinterpret_cast<PFNGLFINALCOMBINERINPUTNVPROC>(__gl_GetProcAddress("glFinalCombinerInputNV"));
    glGetCombinerInputParameterfvNV = reinterpret_cast<PFNGLGETCOMBINERINPUTPARAMETERFVNVPROC>(__gl_GetProcAddress("glGetCombinerInputParameterfvNV"));
    glGetCombinerInputParameterivNV = reinterpret_cast<PFNGLGETCOMBINERINPUTPARAMETERIVNVPROC>(__gl_GetProcAddress("glGetCombinerInputParameterivNV"));
    glGetCombinerOutputParameterfvNV = reinterpret_cast<PFNGLGETCOMBINEROUTPUTPARAMETERFVNVPROC>(__gl_GetProcAddress("glGetCombinerOutputParameterfvNV"));
    glGetCombinerOutputParameterivNV = reinterpret_cast<PFNGLGETCOMBINEROUTPUTPARAMETERIVNVPROC>(__gl_GetProcAddress("glGetCombinerOutputParameterivNV"));
    glGetFinalCombinerInputParameterfvNV = reinterpret_cast<PFNGLGETFINALCOMBINERINPUTPARAMETERFVNVPROC>(__gl_GetProcAddress("glGetFinalCombinerInputParameterfvNV"));
    glGetFinalCombinerInputParameterivNV = reinterpret_cast<PFNGLGETFINALCOMBINERINPUTPARAMETERIVNVPROC>(__gl_GetProcAddress("glGetFinalCombinerInputParameterivNV"));
}

void init_GL_NV_register_combiners2() {
    glCombinerStageParameterfvNV = reinterpret_cast<PFNGLCOMBINERSTAGEPARAMETERFVNVPROC>(__gl_GetProcAddress("glCombinerStageParameterfvNV"));
    glGetCombinerStageParameterfvNV = reinterpret_cast<PFNGLGETCOMBINERSTAGEPARAMETERFVNVPROC>(__gl_GetProcAddress("glGetCombinerStageParameterfvNV"));
}

void init_GL_NV_representative_fragment_test() {}

void init_GL_NV_robustness_video_memory_purge() {}

void init_GL_NV_sample_locations() {
    glFramebufferSampleLocationsfvNV = reinterpret_cast<PFNGLFRAMEBUFFERSAMPLELOCATIONSFVNVPROC>(__gl_GetProcAddress("glFramebufferSampleLocationsfvNV"));
    glNamedFramebufferSampleLocationsfvNV = reinterpret_cast<PFNGLNAMEDFRAMEBUFFERSAMPLELOCATIONSFVNVPROC>(__gl_GetProcAddress("glNamedFramebufferSampleLocationsfvNV"));
    glResolveDepthValuesNV = reinterpret_cast<PFNGLRESOLVEDEPTHVALUESNVPROC>(__gl_GetProcAddress("glResolveDepthValuesNV"));
}

void init_GL_NV_sample_mask_override_coverage() {}

void init_GL_NV_scissor_exclusive() {
    glScissorExclusiveNV = reinterpret_cast<PFNGLSCISSOREXCLUSIVENVPROC>(__gl_GetProcAddress("glScissorExclusiveNV"));
    glScissorExclusiveArrayvNV = reinterpret_cast<PFNGLSCISSOREXCLUSIVEARRAYVNVPROC>(__gl_GetProcAddress("glScissorExclusiveArrayvNV"));
}

void init_GL_NV_shader_atomic_counters() {}

void init_GL_NV_shader_atomic_float() {}

void init_GL_NV_shader_atomic_float64() {}

void init_GL_NV_shader_atomic_fp16_vector() {}

void init_GL_NV_shader_atomic_int64() {}

void init_GL_NV_shader_buffer_load() {
    glMakeBufferResidentNV = reinterpret_cast<PFNGLMAKEBUFFERRESIDENTNVPROC>(__gl_GetProcAddress("glMakeBufferResidentNV"));
    glMakeBufferNonResidentNV = reinterpret_cast<PFNGLMAKEBUFFERNONRESIDENTNVPROC>(__gl_GetProcAddress("glMakeBufferNonResidentNV"));
    glIsBufferResidentNV = reinterpret_cast<PFNGLISBUFFERRESIDENTNVPROC>(__gl_GetProcAddress("glIsBufferResidentNV"));
    glMakeNamedBufferResidentNV = reinterpret_cast<PFNGLMAKENAMEDBUFFERRESIDENTNVPROC>(__gl_GetProcAddress("glMakeNamedBufferResidentNV"));
    glMakeNamedBufferNonResidentNV = reinterpret_cast<PFNGLMAKENAMEDBUFFERNONRESIDENTNVPROC>(__gl_GetProcAddress("glMakeNamedBufferNonResidentNV"));
    glIsNamedBufferResidentNV = reinterpret_cast<PFNGLISNAMEDBUFFERRESIDENTNVPROC>(__gl_GetProcAddress("glIsNamedBufferResidentNV"));
    glGetBufferParameterui64vNV = reinterpret_cast<PFNGLGETBUFFERPARAMETERUI64VNVPROC>(__gl_GetProcAddress("glGetBufferParameterui64vNV"));
    glGetNamedBufferParameterui64vNV = reinterpret_cast<PFNGLGETNAMEDBUFFERPARAMETERUI64VNVPROC>(__gl_GetProcAddress("glGetNamedBufferParameterui64vNV"));
    glGetIntegerui64vNV = reinterpret_cast<PFNGLGETINTEGERUI64VNVPROC>(__gl_GetProcAddress("glGetIntegerui64vNV"));
    glUniformui64NV = reinterpret_cast<PFNGLUNIFORMUI64NVPROC>(__gl_GetProcAddress("glUniformui64NV"));
    glUniformui64vNV = reinterpret_cast<PFNGLUNIFORMUI64VNVPROC>(__gl_GetProcAddress("glUniformui64vNV"));
    glProgramUniformui64NV = reinterpret_cast<PFNGLPROGRAMUNIFORMUI64NVPROC>(__gl_GetProcAddress("glProgramUniformui64NV"));
    glProgramUniformui64vNV = reinterpret_cast<PFNGLPROGRAMUNIFORMUI64VNVPROC>(__gl_GetProcAddress("glProgramUniformui64vNV"));
}

void init_GL_NV_shader_buffer_store() {}

void init_GL_NV_shader_storage_buffer_object() {}

void init_GL_NV_shader_subgroup_partitioned() {}

void init_GL_NV_shader_texture_footprint() {}

void init_GL_NV_shader_thread_group() {}

void init_GL_NV_shader_thread_shuffle() {}

void init_GL_NV_shading_rate_image() {
    glBindShadingRateImageNV = reinterpret_cast<PFNGLBINDSHADINGRATEIMAGENVPROC>(__gl_GetProcAddress("glBindShadingRateImageNV"));
    glGetShadingRateImagePaletteNV = reinterpret_cast<PFNGLGETSHADINGRATEIMAGEPALETTENVPROC>(__gl_GetProcAddress("glGetShadingRateImagePaletteNV"));
    glGetShadingRateSampleLocationivNV = reinterpret_cast<PFNGLGETSHADINGRATESAMPLELOCATIONIVNVPROC>(__gl_GetProcAddress("glGetShadingRateSampleLocationivNV"));
    glShadingRateImageBarrierNV = reinterpret_cast<PFNGLSHADINGRATEIMAGEBARRIERNVPROC>(__gl_GetProcAddress("glShadingRateImageBarrierNV"));
    glShadingRateImagePaletteNV = reinterpret_cast<PFNGLSHADINGRATEIMAGEPALETTENVPROC>(__gl_GetProcAddress("glShadingRateImagePaletteNV"));
    glShadingRateSampleOrderNV = reinterpret_cast<PFNGLSHADINGRATESAMPLEORDERNVPROC>(__gl_GetProcAddress("glShadingRateSampleOrderNV"));
    glShadingRateSampleOrderCustomNV = reinterpret_cast<PFNGLSHADINGRATESAMPLEORDERCUSTOMNVPROC>(__gl_GetProcAddress("glShadingRateSampleOrderCustomNV"));
}

void init_GL_NV_stereo_view_rendering() {}

void init_GL_NV_tessellation_program5() {}

void init_GL_NV_texgen_emboss() {}

void init_GL_NV_texgen_reflection() {}

void init_GL_NV_texture_barrier() {
    glTextureBarrierNV = reinterpret_cast<PFNGLTEXTUREBARRIERNVPROC>(__gl_GetProcAddress("glTextureBarrierNV"));
}

void init_GL_NV_texture_compression_vtc() {}

void init_GL_NV_texture_env_combine4() {}

void init_GL_NV_texture_expand_normal() {}

void init_GL_NV_texture_multisample() {
    glTexImage2DMultisampleCoverageNV = reinterpret_cast<PFNGLTEXIMAGE2DMULTISAMPLECOVERAGENVPROC>(__gl_GetProcAddress("glTexImage2DMultisampleCoverageNV"));
    glTexImage3DMultisampleCoverageNV = reinterpret_cast<PFNGLTEXIMAGE3DMULTISAMPLECOVERAGENVPROC>(__gl_GetProcAddress("glTexImage3DMultisampleCoverageNV"));
    glTextureImage2DMultisampleNV = reinterpret_cast<PFNGLTEXTUREIMAGE2DMULTISAMPLENVPROC>(__gl_GetProcAddress("glTextureImage2DMultisampleNV"));
    glTextureImage3DMultisampleNV = reinterpret_cast<PFNGLTEXTUREIMAGE3DMULTISAMPLENVPROC>(__gl_GetProcAddress("glTextureImage3DMultisampleNV"));
    glTextureImage2DMultisampleCoverageNV = reinterpret_cast<PFNGLTEXTUREIMAGE2DMULTISAMPLECOVERAGENVPROC>(__gl_GetProcAddress("glTextureImage2DMultisampleCoverageNV"));
    glTextureImage3DMultisampleCoverageNV = reinterpret_cast<PFNGLTEXTUREIMAGE3DMULTISAMPLECOVERAGENVPROC>(__gl_GetProcAddress("glTextureImage3DMultisampleCoverageNV"));
}

void init_GL_NV_texture_rectangle() {}

void init_GL_NV_texture_rectangle_compressed() {}

void init_GL_NV_texture_shader() {}

void init_GL_NV_texture_shader2() {}

void init_GL_NV_texture_shader3() {}

void init_GL_NV_timeline_semaphore() {
    glCreateSemaphoresNV = reinterpret_cast<PFNGLCREATESEMAPHORESNVPROC>(__gl_GetProcAddress("glCreateSemaphoresNV"));
    glSemaphoreParameterivNV = reinterpret_cast<PFNGLSEMAPHOREPARAMETERIVNVPROC>(__gl_GetProcAddress("glSemaphoreParameterivNV"));
    glGetSemaphoreParameterivNV = reinterpret_cast<PFNGLGETSEMAPHOREPARAMETERIVNVPROC>(__gl_GetProcAddress("glGetSemaphoreParameterivNV"));
}

void init_GL_NV_transform_feedback() {
    glBeginTransformFeedbackNV = reinterpret_cast<PFNGLBEGINTRANSFORMFEEDBACKNVPROC>(__gl_GetProcAddress("glBeginTransformFeedbackNV"));
    glEndTransformFeedbackNV = reinterpret_cast<PFNGLENDTRANSFORMFEEDBACKNVPROC>(__gl_GetProcAddress("glEndTransformFeedbackNV"));
    glTransformFeedbackAttribsNV = reinterpret_cast<PFNGLTRANSFORMFEEDBACKATTRIBSNVPROC>(__gl_GetProcAddress("glTransformFeedbackAttribsNV"));
    glBindBufferRangeNV = reinterpret_cast<PFNGLBINDBUFFERRANGENVPROC>(__gl_GetProcAddress("glBindBufferRangeNV"));
    glBindBufferOffsetNV = reinterpret_cast<PFNGLBINDBUFFEROFFSETNVPROC>(__gl_GetProcAddress("glBindBufferOffsetNV"));
    glBindBufferBaseNV = reinterpret_cast<PFNGLBINDBUFFERBASENVPROC>(__gl_GetProcAddress("glBindBufferBaseNV"));
    glTransformFeedbackVaryingsNV = reinterpret_cast<PFNGLTRANSFORMFEEDBACKVARYINGSNVPROC>(__gl_GetProcAddress("glTransformFeedbackVaryingsNV"));
    glActiveVaryingNV = reinterpret_cast<PFNGLACTIVEVARYINGNVPROC>(__gl_GetProcAddress("glActiveVaryingNV"));
    glGetVaryingLocationNV = reinterpret_cast<PFNGLGETVARYINGLOCATIONNVPROC>(__gl_GetProcAddress("glGetVaryingLocationNV"));
    glGetActiveVaryingNV = reinterpret_cast<PFNGLGETACTIVEVARYINGNVPROC>(__gl_GetProcAddress("glGetActiveVaryingNV"));
    glGetTransformFeedbackVaryingNV = reinterpret_cast<PFNGLGETTRANSFORMFEEDBACKVARYINGNVPROC>(__gl_GetProcAddress("glGetTransformFeedbackVaryingNV"));
    glTransformFeedbackStreamAttribsNV = reinterpret_cast<PFNGLTRANSFORMFEEDBACKSTREAMATTRIBSNVPROC>(__gl_GetProcAddress("glTransformFeedbackStreamAttribsNV"));
}

void init_GL_NV_transform_feedback2() {
    glBindTransformFeedbackNV = reinterpret_cast<PFNGLBINDTRANSFORMFEEDBACKNVPROC>(__gl_GetProcAddress("glBindTransformFeedbackNV"));
    glDeleteTransformFeedbacksNV = reinterpret_cast<PFNGLDELETETRANSFORMFEEDBACKSNVPROC>(__gl_GetProcAddress("glDeleteTransformFeedbacksNV"));
    glGenTransformFeedbacksNV = reinterpret_cast<PFNGLGENTRANSFORMFEEDBACKSNVPROC>(__gl_GetProcAddress("glGenTransformFeedbacksNV"));
    glIsTransformFeedbackNV = reinterpret_cast<PFNGLISTRANSFORMFEEDBACKNVPROC>(__gl_GetProcAddress("glIsTransformFeedbackNV"));
    glPauseTransformFeedbackNV = reinterpret_cast<PFNGLPAUSETRANSFORMFEEDBACKNVPROC>(__gl_GetProcAddress("glPauseTransformFeedbackNV"));
    glResumeTransformFeedbackNV = reinterpret_cast<PFNGLRESUMETRANSFORMFEEDBACKNVPROC>(__gl_GetProcAddress("glResumeTransformFeedbackNV"));
    glDrawTransformFeedbackNV = reinterpret_cast<PFNGLDRAWTRANSFORMFEEDBACKNVPROC>(__gl_GetProcAddress("glDrawTransformFeedbackNV"));
}

void init_GL_NV_uniform_buffer_unified_memory() {}

void init_GL_NV_vdpau_interop() {
    glVDPAUInitNV = reinterpret_cast<PFNGLVDPAUINITNVPROC>(__gl_GetProcAddress("glVDPAUInitNV"));
    glVDPAUFiniNV = reinterpret_cast<PFNGLVDPAUFININVPROC>(__gl_GetProcAddress("glVDPAUFiniNV"));
    glVDPAURegisterVideoSurfaceNV = reinterpret_cast<PFNGLVDPAUREGISTERVIDEOSURFACENVPROC>(__gl_GetProcAddress("glVDPAURegisterVideoSurfaceNV"));
    glVDPAURegisterOutputSurfaceNV = reinterpret_cast<PFNGLVDPAUREGISTEROUTPUTSURFACENVPROC>(__gl_GetProcAddress("glVDPAURegisterOutputSurfaceNV"));
    glVDPAUIsSurfaceNV = reinterpret_cast<PFNGLVDPAUISSURFACENVPROC>(__gl_GetProcAddress("glVDPAUIsSurfaceNV"));
    glVDPAUUnregisterSurfaceNV = reinterpret_cast<PFNGLVDPAUUNREGISTERSURFACENVPROC>(__gl_GetProcAddress("glVDPAUUnregisterSurfaceNV"));
    glVDPAUGetSurfaceivNV = reinterpret_cast<PFNGLVDPAUGETSURFACEIVNVPROC>(__gl_GetProcAddress("glVDPAUGetSurfaceivNV"));
    glVDPAUSurfaceAccessNV = reinterpret_cast<PFNGLVDPAUSURFACEACCESSNVPROC>(__gl_GetProcAddress("glVDPAUSurfaceAccessNV"));
    glVDPAUMapSurfacesNV = reinterpret_cast<PFNGLVDPAUMAPSURFACESNVPROC>(__gl_GetProcAddress("glVDPAUMapSurfacesNV"));
    glVDPAUUnmapSurfacesNV = reinterpret_cast<PFNGLVDPAUUNMAPSURFACESNVPROC>(__gl_GetProcAddress("glVDPAUUnmapSurfacesNV"));
}

void init_GL_NV_vdpau_interop2() {
    glVDPAURegisterVideoSurfaceWithPictureStructureNV = reinterpret_cast<PFNGLVDPAUREGISTERVIDEOSURFACEWITHPICTURESTRUCTURENVPROC>(__gl_GetProcAddress("glVDPAURegisterVideoSurfaceWithPictureStructureNV"));
}

void init_GL_NV_vertex_array_range() {
    glFlushVertexArrayRangeNV = reinterpret_cast<PFNGLFLUSHVERTEXARRAYRANGENVPROC>(__gl_GetProcAddress("glFlushVertexArrayRangeNV"));
    glVertexArrayRangeNV = reinterpret_cast<PFNGLVERTEXARRAYRANGENVPROC>(__gl_GetProcAddress("glVertexArrayRangeNV"));
}

void init_GL_NV_vertex_array_range2() {}

void init_GL_NV_vertex_attrib_integer_64bit() {
    glVertexAttribL1i64NV = reinterpret_cast<PFNGLVERTEXATTRIBL1I64NVPROC>(__gl_GetProcAddress("glVertexAttribL1i64NV"));
    glVertexAttribL2i64NV = reinterpret_cast<PFNGLVERTEXATTRIBL2I64NVPROC>(__gl_GetProcAddress("glVertexAttribL2i64NV"));
    glVertexAttribL3i64NV = reinterpret_cast<PFNGLVERTEXATTRIBL3I64NVPROC>(__gl_GetProcAddress("glVertexAttribL3i64NV"));
    glVertexAttribL4i64NV = reinterpret_cast<PFNGLVERTEXATTRIBL4I64NVPROC>(__gl_GetProcAddress("glVertexAttribL4i64NV"));
    glVertexAttribL1i64vNV = reinterpret_cast<PFNGLVERTEXATTRIBL1I64VNVPROC>(__gl_GetProcAddress("glVertexAttribL1i64vNV"));
    glVertexAttribL2i64vNV = reinterpret_cast<PFNGLVERTEXATTRIBL2I64VNVPROC>(__gl_GetProcAddress("glVertexAttribL2i64vNV"));
    glVertexAttribL3i64vNV = reinterpret_cast<PFNGLVERTEXATTRIBL3I64VNVPROC>(__gl_GetProcAddress("glVertexAttribL3i64vNV"));
    glVertexAttribL4i64vNV = reinterpret_cast<PFNGLVERTEXATTRIBL4I64VNVPROC>(__gl_GetProcAddress("glVertexAttribL4i64vNV"));
    glVertexAttribL1ui64NV = reinterpret_cast<PFNGLVERTEXATTRIBL1UI64NVPROC>(__gl_GetProcAddress("glVertexAttribL1ui64NV"));
    glVertexAttribL2ui64NV = reinterpret_cast<PFNGLVERTEXATTRIBL2UI64NVPROC>(__gl_GetProcAddress("glVertexAttribL2ui64NV"));
    glVertexAttribL3ui64NV = reinterpret_cast<PFNGLVERTEXATTRIBL3UI64NVPROC>(__gl_GetProcAddress("glVertexAttribL3ui64NV"));
    glVertexAttribL4ui64NV = reinterpret_cast<PFNGLVERTEXATTRIBL4UI64NVPROC>(__gl_GetProcAddress("glVertexAttribL4ui64NV"));
    glVertexAttribL1ui64vNV = reinterpret_cast<PFNGLVERTEXATTRIBL1UI64VNVPROC>(__gl_GetProcAddress("glVertexAttribL1ui64vNV"));
    glVertexAttribL2ui64vNV = reinterpret_cast<PFNGLVERTEXATTRIBL2UI64VNVPROC>(__gl_GetProcAddress("glVertexAttribL2ui64vNV"));
    glVertexAttribL3ui64vNV = reinterpret_cast<PFNGLVERTEXATTRIBL3UI64VNVPROC>(__gl_GetProcAddress("glVertexAttribL3ui64vNV"));
    glVertexAttribL4ui64vNV = reinterpret_cast<PFNGLVERTEXATTRIBL4UI64VNVPROC>(__gl_GetProcAddress("glVertexAttribL4ui64vNV"));
    glGetVertexAttribLi64vNV = reinterpret_cast<PFNGLGETVERTEXATTRIBLI64VNVPROC>(__gl_GetProcAddress("glGetVertexAttribLi64vNV"));
    glGetVertexAttribLui64vNV = reinterpret_cast<PFNGLGETVERTEXATTRIBLUI64VNVPROC>(__gl_GetProcAddress("glGetVertexAttribLui64vNV"));
    glVertexAttribLFormatNV = reinterpret_cast<PFNGLVERTEXATTRIBLFORMATNVPROC>(__gl_GetProcAddress("glVertexAttribLFormatNV"));
}

void init_GL_NV_vertex_buffer_unified_memory() {
    glBufferAddressRangeNV = reinterpret_cast<PFNGLBUFFERADDRESSRANGENVPROC>(__gl_GetProcAddress("glBufferAddressRangeNV"));
    glVertexFormatNV = reinterpret_cast<PFNGLVERTEXFORMATNVPROC>(__gl_GetProcAddress("glVertexFormatNV"));
    glNormalFormatNV = reinterpret_cast<PFNGLNORMALFORMATNVPROC>(__gl_GetProcAddress("glNormalFormatNV"));
    glColorFormatNV = reinterpret_cast<PFNGLCOLORFORMATNVPROC>(__gl_GetProcAddress("glColorFormatNV"));
    glIndexFormatNV = reinterpret_cast<PFNGLINDEXFORMATNVPROC>(__gl_GetProcAddress("glIndexFormatNV"));
    glTexCoordFormatNV = reinterpret_cast<PFNGLTEXCOORDFORMATNVPROC>(__gl_GetProcAddress("glTexCoordFormatNV"));
    glEdgeFlagFormatNV = reinterpret_cast<PFNGLEDGEFLAGFORMATNVPROC>(__gl_GetProcAddress("glEdgeFlagFormatNV"));
    glSecondaryColorFormatNV = reinterpret_cast<PFNGLSECONDARYCOLORFORMATNVPROC>(__gl_GetProcAddress("glSecondaryColorFormatNV"));
    glFogCoordFormatNV = reinterpret_cast<PFNGLFOGCOORDFORMATNVPROC>(__gl_GetProcAddress("glFogCoordFormatNV"));
    glVertexAttribFormatNV = reinterpret_cast<PFNGLVERTEXATTRIBFORMATNVPROC>(__gl_GetProcAddress("glVertexAttribFormatNV"));
    glVertexAttribIFormatNV = reinterpret_cast<PFNGLVERTEXATTRIBIFORMATNVPROC>(__gl_GetProcAddress("glVertexAttribIFormatNV"));
    glGetIntegerui64i_vNV = reinterpret_cast<PFNGLGETINTEGERUI64I_VNVPROC>(__gl_GetProcAddress("glGetIntegerui64i_vNV"));
}

void init_GL_NV_vertex_program() {
    glAreProgramsResidentNV = reinterpret_cast<PFNGLAREPROGRAMSRESIDENTNVPROC>(__gl_GetProcAddress("glAreProgramsResidentNV"));
    glBindProgramNV = reinterpret_cast<PFNGLBINDPROGRAMNVPROC>(__gl_GetProcAddress("glBindProgramNV"));
    glDeleteProgramsNV = reinterpret_cast<PFNGLDELETEPROGRAMSNVPROC>(__gl_GetProcAddress("glDeleteProgramsNV"));
    glExecuteProgramNV = reinterpret_cast<PFNGLEXECUTEPROGRAMNVPROC>(__gl_GetProcAddress("glExecuteProgramNV"));
    glGenProgramsNV = reinterpret_cast<PFNGLGENPROGRAMSNVPROC>(__gl_GetProcAddress("glGenProgramsNV"));
    glGetProgramParameterdvNV = reinterpret_cast<PFNGLGETPROGRAMPARAMETERDVNVPROC>(__gl_GetProcAddress("glGetProgramParameterdvNV"));
    glGetProgramParameterfvNV = reinterpret_cast<PFNGLGETPROGRAMPARAMETERFVNVPROC>(__gl_GetProcAddress("glGetProgramParameterfvNV"));
    glGetProgramivNV = reinterpret_cast<PFNGLGETPROGRAMIVNVPROC>(__gl_GetProcAddress("glGetProgramivNV"));
    glGetProgramStringNV = reinterpret_cast<PFNGLGETPROGRAMSTRINGNVPROC>(__gl_GetProcAddress("glGetProgramStringNV"));
    glGetTrackMatrixivNV = reinterpret_cast<PFNGLGETTRACKMATRIXIVNVPROC>(__gl_GetProcAddress("glGetTrackMatrixivNV"));
    glGetVertexAttribdvNV = reinterpret_cast<PFNGLGETVERTEXATTRIBDVNVPROC>(__gl_GetProcAddress("glGetVertexAttribdvNV"));
    glGetVertexAttribfvNV = reinterpret_cast<PFNGLGETVERTEXATTRIBFVNVPROC>(__gl_GetProcAddress("glGetVertexAttribfvNV"));
    glGetVertexAttribivNV = reinterpret_cast<PFNGLGETVERTEXATTRIBIVNVPROC>(__gl_GetProcAddress("glGetVertexAttribivNV"));
    glGetVertexAttribPointervNV = reinterpret_cast<PFNGLGETVERTEXATTRIBPOINTERVNVPROC>(__gl_GetProcAddress("glGetVertexAttribPointervNV"));
    glIsProgramNV = reinterpret_cast<PFNGLISPROGRAMNVPROC>(__gl_GetProcAddress("glIsProgramNV"));
    glLoadProgramNV = reinterpret_cast<PFNGLLOADPROGRAMNVPROC>(__gl_GetProcAddress("glLoadProgramNV"));
    glProgramParameter4dNV = reinterpret_cast<PFNGLPROGRAMPARAMETER4DNVPROC>(__gl_GetProcAddress("glProgramParameter4dNV"));
    glProgramParameter4dvNV = reinterpret_cast<PFNGLPROGRAMPARAMETER4DVNVPROC>(__gl_GetProcAddress("glProgramParameter4dvNV"));
    glProgramParameter4fNV = reinterpret_cast<PFNGLPROGRAMPARAMETER4FNVPROC>(__gl_GetProcAddress("glProgramParameter4fNV"));
    glProgramParameter4fvNV = reinterpret_cast<PFNGLPROGRAMPARAMETER4FVNVPROC>(__gl_GetProcAddress("glProgramParameter4fvNV"));
    glProgramParameters4dvNV = reinterpret_cast<PFNGLPROGRAMPARAMETERS4DVNVPROC>(__gl_GetProcAddress("glProgramParameters4dvNV"));
    glProgramParameters4fvNV = reinterpret_cast<PFNGLPROGRAMPARAMETERS4FVNVPROC>(__gl_GetProcAddress("glProgramParameters4fvNV"));
    glRequestResidentProgramsNV = reinterpret_cast<PFNGLREQUESTRESIDENTPROGRAMSNVPROC>(__gl_GetProcAddress("glRequestResidentProgramsNV"));
    glTrackMatrixNV = reinterpret_cast<PFNGLTRACKMATRIXNVPROC>(__gl_GetProcAddress("glTrackMatrixNV"));
    glVertexAttribPointerNV = reinterpret_cast<PFNGLVERTEXATTRIBPOINTERNVPROC>(__gl_GetProcAddress("glVertexAttribPointerNV"));
    glVertexAttrib1dNV = reinterpret_cast<PFNGLVERTEXATTRIB1DNVPROC>(__gl_GetProcAddress("glVertexAttrib1dNV"));
    glVertexAttrib1dvNV = reinterpret_cast<PFNGLVERTEXATTRIB1DVNVPROC>(__gl_GetProcAddress("glVertexAttrib1dvNV"));
    glVertexAttrib1fNV = reinterpret_cast<PFNGLVERTEXATTRIB1FNVPROC>(__gl_GetProcAddress("glVertexAttrib1fNV"));
    glVertexAttrib1fvNV = reinterpret_cast<PFNGLVERTEXATTRIB1FVNVPROC>(__gl_GetProcAddress("glVertexAttrib1fvNV"));
    glVertexAttrib1sNV = reinterpret_cast<PFNGLVERTEXATTRIB1SNVPROC>(__gl_GetProcAddress("glVertexAttrib1sNV"));
    glVertexAttrib1svNV = reinterpret_cast<PFNGLVERTEXATTRIB1SVNVPROC>(__gl_GetProcAddress("glVertexAttrib1svNV"));
    glVertexAttrib2dNV = reinterpret_cast<PFNGLVERTEXATTRIB2DNVPROC>(__gl_GetProcAddress("glVertexAttrib2dNV"));
    glVertexAttrib2dvNV = reinterpret_cast<PFNGLVERTEXATTRIB2DVNVPROC>(__gl_GetProcAddress("glVertexAttrib2dvNV"));
    glVertexAttrib2fNV = reinterpret_cast<PFNGLVERTEXATTRIB2FNVPROC>(__gl_GetProcAddress("glVertexAttrib2fNV"));
    glVertexAttrib2fvNV = reinterpret_cast<PFNGLVERTEXATTRIB2FVNVPROC>(__gl_GetProcAddress("glVertexAttrib2fvNV"));
    glVertexAttrib2sNV = reinterpret_cast<PFNGLVERTEXATTRIB2SNVPROC>(__gl_GetProcAddress("glVertexAttrib2sNV"));
    glVertexAttrib2svNV = reinterpret_cast<PFNGLVERTEXATTRIB2SVNVPROC>(__gl_GetProcAddress("glVertexAttrib2svNV"));
    glVertexAttrib3dNV = reinterpret_cast<PFNGLVERTEXATTRIB3DNVPROC>(__gl_GetProcAddress("glVertexAttrib3dNV"));
    glVertexAttrib3dvNV = reinterpret_cast<PFNGLVERTEXATTRIB3DVNVPROC>(__gl_GetProcAddress("glVertexAttrib3dvNV"));
    glVertexAttrib3fNV = reinterpret_cast<PFNGLVERTEXATTRIB3FNVPROC>(__gl_GetProcAddress("glVertexAttrib3fNV"));
    glVertexAttrib3fvNV = reinterpret_cast<PFNGLVERTEXATTRIB3FVNVPROC>(__gl_GetProcAddress("glVertexAttrib3fvNV"));
    glVertexAttrib3sNV = reinterpret_cast<PFNGLVERTEXATTRIB3SNVPROC>(__gl_GetProcAddress("glVertexAttrib3sNV"));
    glVertexAttrib3svNV = reinterpret_cast<PFNGLVERTEXATTRIB3SVNVPROC>(__gl_GetProcAddress("glVertexAttrib3svNV"));
    glVertexAttrib4dNV = reinterpret_cast<PFNGLVERTEXATTRIB4DNVPROC>(__gl_GetProcAddress("glVertexAttrib4dNV"));
    glVertexAttrib4dvNV = reinterpret_cast<PFNGLVERTEXATTRIB4DVNVPROC>(__gl_GetProcAddress("glVertexAttrib4dvNV"));
    glVertexAttrib4fNV = reinterpret_cast<PFNGLVERTEXATTRIB4FNVPROC>(__gl_GetProcAddress("glVertexAttrib4fNV"));
    glVertexAttrib4fvNV = reinterpret_cast<PFNGLVERTEXATTRIB4FVNVPROC>(__gl_GetProcAddress("glVertexAttrib4fvNV"));
    glVertexAttrib4sNV = reinterpret_cast<PFNGLVERTEXATTRIB4SNVPROC>(__gl_GetProcAddress("glVertexAttrib4sNV"));
    glVertexAttrib4svNV = reinterpret_cast<PFNGLVERTEXATTRIB4SVNVPROC>(__gl_GetProcAddress("glVertexAttrib4svNV"));
    glVertexAttrib4ubNV = reinterpret_cast<PFNGLVERTEXATTRIB4UBNVPROC>(__gl_GetProcAddress("glVertexAttrib4ubNV"));
    glVertexAttrib4ubvNV = reinterpret_cast<PFNGLVERTEXATTRIB4UBVNVPROC>(__gl_GetProcAddress("glVertexAttrib4ubvNV"));
    glVertexAttribs1dvNV = reinterpret_cast<PFNGLVERTEXATTRIBS1DVNVPROC>(__gl_GetProcAddress("glVertexAttribs1dvNV"));
    glVertexAttribs1fvNV = reinterpret_cast<PFNGLVERTEXATTRIBS1FVNVPROC>(__gl_GetProcAddress("glVertexAttribs1fvNV"));
    glVertexAttribs1svNV = reinterpret_cast<PFNGLVERTEXATTRIBS1SVNVPROC>(__gl_GetProcAddress("glVertexAttribs1svNV"));
    glVertexAttribs2dvNV = reinterpret_cast<PFNGLVERTEXATTRIBS2DVNVPROC>(__gl_GetProcAddress("glVertexAttribs2dvNV"));
    glVertexAttribs2fvNV = reinterpret_cast<PFNGLVERTEXATTRIBS2FVNVPROC>(__gl_GetProcAddress("glVertexAttribs2fvNV"));
    glVertexAttribs2svNV = reinterpret_cast<PFNGLVERTEXATTRIBS2SVNVPROC>(__gl_GetProcAddress("glVertexAttribs2svNV"));
    glVertexAttribs3dvNV = reinterpret_cast<PFNGLVERTEXATTRIBS3DVNVPROC>(__gl_GetProcAddress("glVertexAttribs3dvNV"));
    glVertexAttribs3fvNV = reinterpret_cast<PFNGLVERTEXATTRIBS3FVNVPROC>(__gl_GetProcAddress("glVertexAttribs3fvNV"));
    glVertexAttribs3svNV = reinterpret_cast<PFNGLVERTEXATTRIBS3SVNVPROC>(__gl_GetProcAddress("glVertexAttribs3svNV"));
    glVertexAttribs4dvNV = reinterpret_cast<PFNGLVERTEXATTRIBS4DVNVPROC>(__gl_GetProcAddress("glVertexAttribs4dvNV"));
    glVertexAttribs4fvNV = reinterpret_cast<PFNGLVERTEXATTRIBS4FVNVPROC>(__gl_GetProcAddress("glVertexAttribs4fvNV"));
    glVertexAttribs4svNV = reinterpret_cast<PFNGLVERTEXATTRIBS4SVNVPROC>(__gl_GetProcAddress("glVertexAttribs4svNV"));
    glVertexAttribs4ubvNV = reinterpret_cast<PFNGLVERTEXATTRIBS4UBVNVPROC>(__gl_GetProcAddress("glVertexAttribs4ubvNV"));
}

void init_GL_NV_vertex_program1_1() {}

void init_GL_NV_vertex_program2() {}

void init_GL_NV_vertex_program2_option() {}

void init_GL_NV_vertex_program3() {}

void init_GL_NV_vertex_program4() {}

void init_GL_NV_video_capture() {
    glBeginVideoCaptureNV = reinterpret_cast<PFNGLBEGINVIDEOCAPTURENVPROC>(__gl_GetProcAddress("glBeginVideoCaptureNV"));
    glBindVideoCaptureStreamBufferNV = reinterpret_cast<PFNGLBINDVIDEOCAPTURESTREAMBUFFERNVPROC>(__gl_GetProcAddress("glBindVideoCaptureStreamBufferNV"));
    glBindVideoCaptureStreamTextureNV = reinterpret_cast<PFNGLBINDVIDEOCAPTURESTREAMTEXTURENVPROC>(__gl_GetProcAddress("glBindVideoCaptureStreamTextureNV"));
    glEndVideoCaptureNV = reinterpret_cast<PFNGLENDVIDEOCAPTURENVPROC>(__gl_GetProcAddress("glEndVideoCaptureNV"));
    glGetVideoCaptureivNV = reinterpret_cast<PFNGLGETVIDEOCAPTUREIVNVPROC>(__gl_GetProcAddress("glGetVideoCaptureivNV"));
    glGetVideoCaptureStreamivNV = reinterpret_cast<PFNGLGETVIDEOCAPTURESTREAMIVNVPROC>(__gl_GetProcAddress("glGetVideoCaptureStreamivNV"));
    glGetVideoCaptureStreamfvNV = reinterpret_cast<PFNGLGETVIDEOCAPTURESTREAMFVNVPROC>(__gl_GetProcAddress("glGetVideoCaptureStreamfvNV"));
    glGetVideoCaptureStreamdvNV = reinterpret_cast<PFNGLGETVIDEOCAPTURESTREAMDVNVPROC>(__gl_GetProcAddress("glGetVideoCaptureStreamdvNV"));
    glVideoCaptureNV = reinterpret_cast<PFNGLVIDEOCAPTURENVPROC>(__gl_GetProcAddress("glVideoCaptureNV"));
    glVideoCaptureStreamParameterivNV = reinterpret_cast<PFNGLVIDEOCAPTURESTREAMPARAMETERIVNVPROC>(__gl_GetProcAddress("glVideoCaptureStreamParameterivNV"));
    glVideoCaptureStreamParameterfvNV = reinterpret_cast<PFNGLVIDEOCAPTURESTREAMPARAMETERFVNVPROC>(__gl_GetProcAddress("glVideoCaptureStreamParameterfvNV"));
    glVideoCaptureStreamParameterdvNV = reinterpret_cast<PFNGLVIDEOCAPTURESTREAMPARAMETERDVNVPROC>(__gl_GetProcAddress("glVideoCaptureStreamParameterdvNV"));
}

void init_GL_NV_viewport_array2() {}

void init_GL_NV_viewport_swizzle() {
    glViewportSwizzleNV = reinterpret_cast<PFNGLVIEWPORTSWIZZLENVPROC>(__gl_GetProcAddress("glViewportSwizzleNV"));
}
