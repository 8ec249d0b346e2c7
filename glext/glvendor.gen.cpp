// SPDX-License-Identifier: MIT
// Entry points, flags and resolving functions: vendor group.
// Made by tools/generate_glext.py from OpenGL headers of 20220530; don't edit.
// clang-format off

#include "glext/glextloader.h"

PFNGLTBUFFERMASK3DFXPROC glTbufferMask3DFX = nullptr;
PFNGLDEBUGMESSAGEENABLEAMDPROC glDebugMessageEnableAMD = nullptr;
PFNGLDEBUGMESSAGEINSERTAMDPROC glDebugMessageInsertAMD = nullptr;
PFNGLDEBUGMESSAGECALLBACKAMDPROC glDebugMessageCallbackAMD = nullptr;
PFNGLGETDEBUGMESSAGELOGAMDPROC glGetDebugMessageLogAMD = nullptr;
PFNGLBLENDFUNCINDEXEDAMDPROC glBlendFuncIndexedAMD = nullptr;
PFNGLBLENDFUNCSEPARATEINDEXEDAMDPROC glBlendFuncSeparateIndexedAMD = nullptr;
PFNGLBLENDEQUATIONINDEXEDAMDPROC glBlendEquationIndexedAMD = nullptr;
PFNGLBLENDEQUATIONSEPARATEINDEXEDAMDPROC glBlendEquationSeparateIndexedAMD = nullptr;
PFNGLRENDERBUFFERSTORAGEMULTISAMPLEADVANCEDAMDPROC glRenderbufferStorageMultisampleAdvancedAMD = nullptr;
PFNGLNAMEDRENDERBUFFERSTORAGEMULTISAMPLEADVANCEDAMDPROC glNamedRenderbufferStorageMultisampleAdvancedAMD = nullptr;
PFNGLFRAMEBUFFERSAMPLEPOSITIONSFVAMDPROC glFramebufferSamplePositionsfvAMD = nullptr;
PFNGLNAMEDFRAMEBUFFERSAMPLEPOSITIONSFVAMDPROC glNamedFramebufferSamplePositionsfvAMD = nullptr;
PFNGLGETFRAMEBUFFERPARAMETERFVAMDPROC glGetFramebufferParameterfvAMD = nullptr;
PFNGLGETNAMEDFRAMEBUFFERPARAMETERFVAMDPROC glGetNamedFramebufferParameterfvAMD = nullptr;
PFNGLUNIFORM1I64NVPROC glUniform1i64NV = nullptr;
PFNGLUNIFORM2I64NVPROC glUniform2i64NV = nullptr;
PFNGLUNIFORM3I64NVPROC glUniform3i64NV = nullptr;
PFNGLUNIFORM4I64NVPROC glUniform4i64NV = nullptr;
PFNGLUNIFORM1I64VNVPROC glUniform1i64vNV = nullptr;
PFNGLUNIFORM2I64VNVPROC glUniform2i64vNV = nullptr;
PFNGLUNIFORM3I64VNVPROC glUniform3i64vNV = nullptr;
PFNGLUNIFORM4I64VNVPROC glUniform4i64vNV = nullptr;
PFNGLUNIFORM1UI64NVPROC glUniform1ui64NV = nullptr;
PFNGLUNIFORM2UI64NVPROC glUniform2ui64NV = nullptr;
PFNGLUNIFORM3UI64NVPROC glUniform3ui64NV = nullptr;
PFNGLUNIFORM4UI64NVPROC glUniform4ui64NV = nullptr;
PFNGLUNIFORM1UI64VNVPROC glUniform1ui64vNV = nullptr;
PFNGLUNIFORM2UI64VNVPROC glUniform2ui64vNV = nullptr;
PFNGLUNIFORM3UI64VNVPROC glUniform3ui64vNV = nullptr;
PFNGLUNIFORM4UI64VNVPROC glUniform4ui64vNV = nullptr;
PFNGLGETUNIFORMI64VNVPROC glGetUniformi64vNV = nullptr;
PFNGLGETUNIFORMUI64VNVPROC glGetUniformui64vNV = nullptr;
PFNGLPROGRAMUNIFORM1I64NVPROC glProgramUniform1i64NV = nullptr;
PFNGLPROGRAMUNIFORM2I64NVPROC glProgramUniform2i64NV = nullptr;
PFNGLPROGRAMUNIFORM3I64NVPROC glProgramUniform3i64NV = nullptr;
PFNGLPROGRAMUNIFORM4I64NVPROC glProgramUniform4i64NV = nullptr;
PFNGLPROGRAMUNIFORM1I64VNVPROC glProgramUniform1i64vNV = nullptr;
PFNGLPROGRAMUNIFORM2I64VNVPROC glProgramUniform2i64vNV = nullptr;
PFNGLPROGRAMUNIFORM3I64VNVPROC glProgramUniform3i64vNV = nullptr;
PFNGLPROGRAMUNIFORM4I64VNVPROC glProgramUniform4i64vNV = nullptr;
PFNGLPROGRAMUNIFORM1UI64NVPROC glProgramUniform1ui64NV = nullptr;
PFNGLPROGRAMUNIFORM2UI64NVPROC glProgramUniform2ui64NV = nullptr;
PFNGLPROGRAMUNIFORM3UI64NVPROC glProgramUniform3ui64NV = nullptr;
PFNGLPROGRAMUNIFORM4UI64NVPROC glProgramUniform4ui64NV = nullptr;
PFNGLPROGRAMUNIFORM1UI64VNVPROC glProgramUniform1ui64vNV = nullptr;
PFNGLPROGRAMUNIFORM2UI64VNVPROC glProgramUniform2ui64vNV = nullptr;
PFNGLPROGRAMUNIFORM3UI64VNVPROC glProgramUniform3ui64vNV = nullptr;
PFNGLPROGRAMUNIFORM4UI64VNVPROC glProgramUniform4ui64vNV = nullptr;
PFNGLVERTEXATTRIBPARAMETERIAMDPROC glVertexAttribParameteriAMD = nullptr;
PFNGLMULTIDRAWARRAYSINDIRECTAMDPROC glMultiDrawArraysIndirectAMD = nullptr;
PFNGLMULTIDRAWELEMENTSINDIRECTAMDPROC glMultiDrawElementsIndirectAMD = nullptr;
PFNGLGENNAMESAMDPROC glGenNamesAMD = nullptr;
PFNGLDELETENAMESAMDPROC glDeleteNamesAMD = nullptr;
PFNGLISNAMEAMDPROC glIsNameAMD = nullptr;
PFNGLQUERYOBJECTPARAMETERUIAMDPROC glQueryObjectParameteruiAMD = nullptr;
PFNGLGETPERFMONITORGROUPSAMDPROC glGetPerfMonitorGroupsAMD = nullptr;
PFNGLGETPERFMONITORCOUNTERSAMDPROC glGetPerfMonitorCountersAMD = nullptr;
PFNGLGETPERFMONITORGROUPSTRINGAMDPROC glGetPerfMonitorGroupStringAMD = nullptr;
PFNGLGETPERFMONITORCOUNTERSTRINGAMDPROC glGetPerfMonitorCounterStringAMD = nullptr;
PFNGLGETPERFMONITORCOUNTERINFOAMDPROC glGetPerfMonitorCounterInfoAMD = nullptr;
PFNGLGENPERFMONITORSAMDPROC glGenPerfMonitorsAMD = nullptr;
PFNGLDELETEPERFMONITORSAMDPROC glDeletePerfMonitorsAMD = nullptr;
PFNGLSELECTPERFMONITORCOUNTERSAMDPROC glSelectPerfMonitorCountersAMD = nullptr;
PFNGLBEGINPERFMONITORAMDPROC glBeginPerfMonitorAMD = nullptr;
PFNGLENDPERFMONITORAMDPROC glEndPerfMonitorAMD = nullptr;
PFNGLGETPERFMONITORCOUNTERDATAAMDPROC glGetPerfMonitorCounterDataAMD = nullptr;
PFNGLSETMULTISAMPLEFVAMDPROC glSetMultisamplefvAMD = nullptr;
PFNGLTEXSTORAGESPARSEAMDPROC glTexStorageSparseAMD = nullptr;
PFNGLTEXTURESTORAGESPARSEAMDPROC glTextureStorageSparseAMD = nullptr;
PFNGLSTENCILOPVALUEAMDPROC glStencilOpValueAMD = nullptr;
PFNGLTESSELLATIONFACTORAMDPROC glTessellationFactorAMD = nullptr;
PFNGLTESSELLATIONMODEAMDPROC glTessellationModeAMD = nullptr;
PFNGLELEMENTPOINTERAPPLEPROC glElementPointerAPPLE = nullptr;
PFNGLDRAWELEMENTARRAYAPPLEPROC glDrawElementArrayAPPLE = nullptr;
PFNGLDRAWRANGEELEMENTARRAYAPPLEPROC glDrawRangeElementArrayAPPLE = nullptr;
PFNGLMULTIDRAWELEMENTARRAYAPPLEPROC glMultiDrawElementArrayAPPLE = nullptr;
PFNGLMULTIDRAWRANGEELEMENTARRAYAPPLEPROC glMultiDrawRangeElementArrayAPPLE = nullptr;
PFNGLGENFENCESAPPLEPROC glGenFencesAPPLE = nullptr;
PFNGLDELETEFENCESAPPLEPROC glDeleteFencesAPPLE = nullptr;
PFNGLSETFENCEAPPLEPROC glSetFenceAPPLE = nullptr;
PFNGLISFENCEAPPLEPROC glIsFenceAPPLE = nullptr;
PFNGLTESTFENCEAPPLEPROC glTestFenceAPPLE = nullptr;
PFNGLFINISHFENCEAPPLEPROC glFinishFenceAPPLE = nullptr;
PFNGLTESTOBJECTAPPLEPROC glTestObjectAPPLE = nullptr;
PFNGLFINISHOBJECTAPPLEPROC glFinishObjectAPPLE = nullptr;
PFNGLBUFFERPARAMETERIAPPLEPROC glBufferParameteriAPPLE = nullptr;
PFNGLFLUSHMAPPEDBUFFERRANGEAPPLEPROC glFlushMappedBufferRangeAPPLE = nullptr;
PFNGLOBJECTPURGEABLEAPPLEPROC glObjectPurgeableAPPLE = nullptr;
PFNGLOBJECTUNPURGEABLEAPPLEPROC glObjectUnpurgeableAPPLE = nullptr;
PFNGLGETOBJECTPARAMETERIVAPPLEPROC glGetObjectParameterivAPPLE = nullptr;
PFNGLTEXTURERANGEAPPLEPROC glTextureRangeAPPLE = nullptr;
PFNGLGETTEXPARAMETERPOINTERVAPPLEPROC glGetTexParameterPointervAPPLE = nullptr;
PFNGLBINDVERTEXARRAYAPPLEPROC glBindVertexArrayAPPLE = nullptr;
PFNGLDELETEVERTEXARRAYSAPPLEPROC glDeleteVertexArraysAPPLE = nullptr;
PFNGLGENVERTEXARRAYSAPPLEPROC glGenVertexArraysAPPLE = nullptr;
PFNGLISVERTEXARRAYAPPLEPROC glIsVertexArrayAPPLE = nullptr;
PFNGLVERTEXARRAYRANGEAPPLEPROC glVertexArrayRangeAPPLE = nullptr;
PFNGLFLUSHVERTEXARRAYRANGEAPPLEPROC glFlushVertexArrayRangeAPPLE = nullptr;
PFNGLVERTEXARRAYPARAMETERIAPPLEPROC glVertexArrayParameteriAPPLE = nullptr;
PFNGLENABLEVERTEXATTRIBAPPLEPROC glEnableVertexAttribAPPLE = nullptr;
PFNGLDISABLEVERTEXATTRIBAPPLEPROC glDisableVertexAttribAPPLE = nullptr;
PFNGLISVERTEXATTRIBENABLEDAPPLEPROC glIsVertexAttribEnabledAPPLE = nullptr;
PFNGLMAPVERTEXATTRIB1DAPPLEPROC glMapVertexAttrib1dAPPLE = nullptr;
PFNGLMAPVERTEXATTRIB1FAPPLEPROC glMapVertexAttrib1fAPPLE = nullptr;
PFNGLMAPVERTEXATTRIB2DAPPLEPROC glMapVertexAttrib2dAPPLE = nullptr;
PFNGLMAPVERTEXATTRIB2FAPPLEPROC glMapVertexAttrib2fAPPLE = nullptr;
PFNGLDRAWBUFFERSATIPROC glDrawBuffersATI = nullptr;
PFNGLELEMENTPOINTERATIPROC glElementPointerATI = nullptr;
PFNGLDRAWELEMENTARRAYATIPROC glDrawElementArrayATI = nullptr;
PFNGLDRAWRANGEELEMENTARRAYATIPROC glDrawRangeElementArrayATI = nullptr;
PFNGLTEXBUMPPARAMETERIVATIPROC glTexBumpParameterivATI = nullptr;
PFNGLTEXBUMPPARAMETERFVATIPROC glTexBumpParameterfvATI = nullptr;
PFNGLGETTEXBUMPPARAMETERIVATIPROC glGetTexBumpParameterivATI = nullptr;
PFNGLGETTEXBUMPPARAMETERFVATIPROC glGetTexBumpParameterfvATI = nullptr;
PFNGLGENFRAGMENTSHADERSATIPROC glGenFragmentShadersATI = nullptr;
PFNGLBINDFRAGMENTSHADERATIPROC glBindFragmentShaderATI = nullptr;
PFNGLDELETEFRAGMENTSHADERATIPROC glDeleteFragmentShaderATI = nullptr;
PFNGLBEGINFRAGMENTSHADERATIPROC glBeginFragmentShaderATI = nullptr;
PFNGLENDFRAGMENTSHADERATIPROC glEndFragmentShaderATI = nullptr;
PFNGLPASSTEXCOORDATIPROC glPassTexCoordATI = nullptr;
PFNGLSAMPLEMAPATIPROC glSampleMapATI = nullptr;
PFNGLCOLORFRAGMENTOP1ATIPROC glColorFragmentOp1ATI = nullptr;
PFNGLCOLORFRAGMENTOP2ATIPROC glColorFragmentOp2ATI = nullptr;
PFNGLCOLORFRAGMENTOP3ATIPROC glColorFragmentOp3ATI = nullptr;
PFNGLALPHAFRAGMENTOP1ATIPROC glAlphaFragmentOp1ATI = nullptr;
PFNGLALPHAFRAGMENTOP2ATIPROC glAlphaFragmentOp2ATI = nullptr;
PFNGLALPHAFRAGMENTOP3ATIPROC glAlphaFragmentOp3ATI = nullptr;
PFNGLSETFRAGMENTSHADERCONSTANTATIPROC glSetFragmentShaderConstantATI = nullptr;
PFNGLMAPOBJECTBUFFERATIPROC glMapObjectBufferATI = nullptr;
PFNGLUNMAPOBJECTBUFFERATIPROC glUnmapObjectBufferATI = nullptr;
PFNGLPNTRIANGLESIATIPROC glPNTrianglesiATI = nullptr;
PFNGLPNTRIANGLESFATIPROC glPNTrianglesfATI = nullptr;
PFNGLSTENCILOPSEPARATEATIPROC glStencilOpSeparateATI = nullptr;
PFNGLSTENCILFUNCSEPARATEATIPROC glStencilFuncSeparateATI = nullptr;
PFNGLNEWOBJECTBUFFERATIPROC glNewObjectBufferATI = nullptr;
PFNGLISOBJECTBUFFERATIPROC glIsObjectBufferATI = nullptr;
PFNGLUPDATEOBJECTBUFFERATIPROC glUpdateObjectBufferATI = nullptr;
PFNGLGETOBJECTBUFFERFVATIPROC glGetObjectBufferfvATI = nullptr;
PFNGLGETOBJECTBUFFERIVATIPROC glGetObjectBufferivATI = nullptr;
PFNGLFREEOBJECTBUFFERATIPROC glFreeObjectBufferATI = nullptr;
PFNGLARRAYOBJECTATIPROC glArrayObjectATI = nullptr;
PFNGLGETARRAYOBJECTFVATIPROC glGetArrayObjectfvATI = nullptr;
PFNGLGETARRAYOBJECTIVATIPROC glGetArrayObjectivATI = nullptr;
PFNGLVARIANTARRAYOBJECTATIPROC glVariantArrayObjectATI = nullptr;
PFNGLGETVARIANTARRAYOBJECTFVATIPROC glGetVariantArrayObjectfvATI = nullptr;
PFNGLGETVARIANTARRAYOBJECTIVATIPROC glGetVariantArrayObjectivATI = nullptr;
PFNGLVERTEXATTRIBARRAYOBJECTATIPROC glVertexAttribArrayObjectATI = nullptr;
PFNGLGETVERTEXATTRIBARRAYOBJECTFVATIPROC glGetVertexAttribArrayObjectfvATI = nullptr;
PFNGLGETVERTEXATTRIBARRAYOBJECTIVATIPROC glGetVertexAttribArrayObjectivATI = nullptr;
PFNGLVERTEXSTREAM1SATIPROC glVertexStream1sATI = nullptr;
PFNGLVERTEXSTREAM1SVATIPROC glVertexStream1svATI = nullptr;
PFNGLVERTEXSTREAM1IATIPROC glVertexStream1iATI = nullptr;
PFNGLVERTEXSTREAM1IVATIPROC glVertexStream1ivATI = nullptr;
PFNGLVERTEXSTREAM1FATIPROC glVertexStream1fATI = nullptr;
PFNGLVERTEXSTREAM1FVATIPROC glVertexStream1fvATI = nullptr;
PFNGLVERTEXSTREAM1DATIPROC glVertexStream1dATI = nullptr;
PFNGLVERTEXSTREAM1DVATIPROC glVertexStream1dvATI = nullptr;
PFNGLVERTEXSTREAM2SATIPROC glVertexStream2sATI = nullptr;
PFNGLVERTEXSTREAM2SVATIPROC glVertexStream2svATI = nullptr;
PFNGLVERTEXSTREAM2IATIPROC glVertexStream2iATI = nullptr;
PFNGLVERTEXSTREAM2IVATIPROC glVertexStream2ivATI = nullptr;
PFNGLVERTEXSTREAM2FATIPROC glVertexStream2fATI = nullptr;
PFNGLVERTEXSTREAM2FVATIPROC glVertexStream2fvATI = nullptr;
PFNGLVERTEXSTREAM2DATIPROC glVertexStream2dATI = nullptr;
PFNGLVERTEXSTREAM2DVATIPROC glVertexStream2dvATI = nullptr;
PFNGLVERTEXSTREAM3SATIPROC glVertexStream3sATI = nullptr;
PFNGLVERTEXSTREAM3SVATIPROC glVertexStream3svATI = nullptr;
PFNGLVERTEXSTREAM3IATIPROC glVertexStream3iATI = nullptr;
PFNGLVERTEXSTREAM3IVATIPROC glVertexStream3ivATI = nullptr;
PFNGLVERTEXSTREAM3FATIPROC glVertexStream3fATI = nullptr;
PFNGLVERTEXSTREAM3FVATIPROC glVertexStream3fvATI = nullptr;
PFNGLVERTEXSTREAM3DATIPROC glVertexStream3dATI = nullptr;
PFNGLVERTEXSTREAM3DVATIPROC glVertexStream3dvATI = nullptr;
PFNGLVERTEXSTREAM4SATIPROC glVertexStream4sATI = nullptr;
PFNGLVERTEXSTREAM4SVATIPROC glVertexStream4svATI = nullptr;
PFNGLVERTEXSTREAM4IATIPROC glVertexStream4iATI = nullptr;
PFNGLVERTEXSTREAM4IVATIPROC glVertexStream4ivATI = nullptr;
PFNGLVERTEXSTREAM4FATIPROC glVertexStream4fATI = nullptr;
PFNGLVERTEXSTREAM4FVATIPROC glVertexStream4fvATI = nullptr;
PFNGLVERTEXSTREAM4DATIPROC glVertexStream4dATI = nullptr;
PFNGLVERTEXSTREAM4DVATIPROC glVertexStream4dvATI = nullptr;
PFNGLNORMALSTREAM3BATIPROC glNormalStream3bATI = nullptr;
PFNGLNORMALSTREAM3BVATIPROC glNormalStream3bvATI = nullptr;
PFNGLNORMALSTREAM3SATIPROC glNormalStream3sATI = nullptr;
PFNGLNORMALSTREAM3SVATIPROC glNormalStream3svATI = nullptr;
PFNGLNORMALSTREAM3IATIPROC glNormalStream3iATI = nullptr;
PFNGLNORMALSTREAM3IVATIPROC glNormalStream3ivATI = nullptr;
PFNGLNORMALSTREAM3FATIPROC glNormalStream3fATI = nullptr;
PFNGLNORMALSTREAM3FVATIPROC glNormalStream3fvATI = nullptr;
PFNGLNORMALSTREAM3DATIPROC glNormalStream3dATI = nullptr;
PFNGLNORMALSTREAM3DVATIPROC glNormalStream3dvATI = nullptr;
PFNGLCLIENTACTIVEVERTEXSTREAMATIPROC glClientActiveVertexStreamATI = nullptr;
PFNGLVERTEXBLENDENVIATIPROC glVertexBlendEnviATI = nullptr;
PFNGLVERTEXBLENDENVFATIPROC glVertexBlendEnvfATI = nullptr;
PFNGLFRAMETERMINATORGREMEDYPROC glFrameTerminatorGREMEDY = nullptr;
PFNGLSTRINGMARKERGREMEDYPROC glStringMarkerGREMEDY = nullptr;
PFNGLIMAGETRANSFORMPARAMETERIHPPROC glImageTransformParameteriHP = nullptr;
PFNGLIMAGETRANSFORMPARAMETERFHPPROC glImageTransformParameterfHP = nullptr;
PFNGLIMAGETRANSFORMPARAMETERIVHPPROC glImageTransformParameterivHP = nullptr;
PFNGLIMAGETRANSFORMPARAMETERFVHPPROC glImageTransformParameterfvHP = nullptr;
PFNGLGETIMAGETRANSFORMPARAMETERIVHPPROC glGetImageTransformParameterivHP = nullptr;
PFNGLGETIMAGETRANSFORMPARAMETERFVHPPROC glGetImageTransformParameterfvHP = nullptr;
PFNGLMULTIMODEDRAWARRAYSIBMPROC glMultiModeDrawArraysIBM = nullptr;
PFNGLMULTIMODEDRAWELEMENTSIBMPROC glMultiModeDrawElementsIBM = nullptr;
PFNGLFLUSHSTATICDATAIBMPROC glFlushStaticDataIBM = nullptr;
PFNGLCOLORPOINTERLISTIBMPROC glColorPointerListIBM = nullptr;
PFNGLSECONDARYCOLORPOINTERLISTIBMPROC glSecondaryColorPointerListIBM = nullptr;
PFNGLEDGEFLAGPOINTERLISTIBMPROC glEdgeFlagPointerListIBM = nullptr;
PFNGLFOGCOORDPOINTERLISTIBMPROC glFogCoordPointerListIBM = nullptr;
PFNGLINDEXPOINTERLISTIBMPROC glIndexPointerListIBM = nullptr;
PFNGLNORMALPOINTERLISTIBMPROC glNormalPointerListIBM = nullptr;
PFNGLTEXCOORDPOINTERLISTIBMPROC glTexCoordPointerListIBM = nullptr;
PFNGLVERTEXPOINTERLISTIBMPROC glVertexPointerListIBM = nullptr;
PFNGLBLENDFUNCSEPARATEINGRPROC glBlendFuncSeparateINGR = nullptr;
PFNGLAPPLYFRAMEBUFFERATTACHMENTCMAAINTELPROC glApplyFramebufferAttachmentCMAAINTEL = nullptr;
PFNGLSYNCTEXTUREINTELPROC glSyncTextureINTEL = nullptr;
PFNGLUNMAPTEXTURE2DINTELPROC glUnmapTexture2DINTEL = nullptr;
PFNGLMAPTEXTURE2DINTELPROC glMapTexture2DINTEL = nullptr;
PFNGLVERTEXPOINTERVINTELPROC glVertexPointervINTEL = nullptr;
PFNGLNORMALPOINTERVINTELPROC glNormalPointervINTEL = nullptr;
PFNGLCOLORPOINTERVINTELPROC glColorPointervINTEL = nullptr;
PFNGLTEXCOORDPOINTERVINTELPROC glTexCoordPointervINTEL = nullptr;
PFNGLBEGINPERFQUERYINTELPROC glBeginPerfQueryINTEL = nullptr;
PFNGLCREATEPERFQUERYINTELPROC glCreatePerfQueryINTEL = nullptr;
PFNGLDELETEPERFQUERYINTELPROC glDeletePerfQueryINTEL = nullptr;
PFNGLENDPERFQUERYINTELPROC glEndPerfQueryINTEL = nullptr;
PFNGLGETFIRSTPERFQUERYIDINTELPROC glGetFirstPerfQueryIdINTEL = nullptr;
PFNGLGETNEXTPERFQUERYIDINTELPROC glGetNextPerfQueryIdINTEL = nullptr;
PFNGLGETPERFCOUNTERINFOINTELPROC glGetPerfCounterInfoINTEL = nullptr;
PFNGLGETPERFQUERYDATAINTELPROC glGetPerfQueryDataINTEL = nullptr;
PFNGLGETPERFQUERYIDBYNAMEINTELPROC glGetPerfQueryIdByNameINTEL = nullptr;
PFNGLGETPERFQUERYINFOINTELPROC glGetPerfQueryInfoINTEL = nullptr;
PFNGLBLENDBARRIERKHRPROC glBlendBarrierKHR = nullptr;
PFNGLMAXSHADERCOMPILERTHREADSKHRPROC glMaxShaderCompilerThreadsKHR = nullptr;
PFNGLFRAMEBUFFERPARAMETERIMESAPROC glFramebufferParameteriMESA = nullptr;
PFNGLGETFRAMEBUFFERPARAMETERIVMESAPROC glGetFramebufferParameterivMESA = nullptr;
PFNGLRESIZEBUFFERSMESAPROC glResizeBuffersMESA = nullptr;
PFNGLMULTITEXCOORD1BOESPROC glMultiTexCoord1bOES = nullptr;
PFNGLMULTITEXCOORD1BVOESPROC glMultiTexCoord1bvOES = nullptr;
PFNGLMULTITEXCOORD2BOESPROC glMultiTexCoord2bOES = nullptr;
PFNGLMULTITEXCOORD2BVOESPROC glMultiTexCoord2bvOES = nullptr;
PFNGLMULTITEXCOORD3BOESPROC glMultiTexCoord3bOES = nullptr;
PFNGLMULTITEXCOORD3BVOESPROC glMultiTexCoord3bvOES = nullptr;
PFNGLMULTITEXCOORD4BOESPROC glMultiTexCoord4bOES = nullptr;
PFNGLMULTITEXCOORD4BVOESPROC glMultiTexCoord4bvOES = nullptr;
PFNGLTEXCOORD1BOESPROC glTexCoord1bOES = nullptr;
PFNGLTEXCOORD1BVOESPROC glTexCoord1bvOES = nullptr;
PFNGLTEXCOORD2BOESPROC glTexCoord2bOES = nullptr;
PFNGLTEXCOORD2BVOESPROC glTexCoord2bvOES = nullptr;
PFNGLTEXCOORD3BOESPROC glTexCoord3bOES = nullptr;
PFNGLTEXCOORD3BVOESPROC glTexCoord3bvOES = nullptr;
PFNGLTEXCOORD4BOESPROC glTexCoord4bOES = nullptr;
PFNGLTEXCOORD4BVOESPROC glTexCoord4bvOES = nullptr;
PFNGLVERTEX2BOESPROC glVertex2bOES = nullptr;
PFNGLVERTEX2BVOESPROC glVertex2bvOES = nullptr;
PFNGLVERTEX3BOESPROC glVertex3bOES = nullptr;
PFNGLVERTEX3BVOESPROC glVertex3bvOES = nullptr;
PFNGLVERTEX4BOESPROC glVertex4bOES = nullptr;
PFNGLVERTEX4BVOESPROC glVertex4bvOES = nullptr;
PFNGLALPHAFUNCXOESPROC glAlphaFuncxOES = nullptr;
PFNGLCLEARCOLORXOESPROC glClearColorxOES = nullptr;
PFNGLCLEARDEPTHXOESPROC glClearDepthxOES = nullptr;
PFNGLCLIPPLANEXOESPROC glClipPlanexOES = nullptr;
PFNGLCOLOR4XOESPROC glColor4xOES = nullptr;
PFNGLDEPTHRANGEXOESPROC glDepthRangexOES = nullptr;
PFNGLFOGXOESPROC glFogxOES = nullptr;
PFNGLFOGXVOESPROC glFogxvOES = nullptr;
PFNGLFRUSTUMXOESPROC glFrustumxOES = nullptr;
PFNGLGETCLIPPLANEXOESPROC glGetClipPlanexOES = nullptr;
PFNGLGETFIXEDVOESPROC glGetFixedvOES = nullptr;
PFNGLGETTEXENVXVOESPROC glGetTexEnvxvOES = nullptr;
PFNGLGETTEXPARAMETERXVOESPROC glGetTexParameterxvOES = nullptr;
PFNGLLIGHTMODELXOESPROC glLightModelxOES = nullptr;
PFNGLLIGHTMODELXVOESPROC glLightModelxvOES = nullptr;
PFNGLLIGHTXOESPROC glLightxOES = nullptr;
PFNGLLIGHTXVOESPROC glLightxvOES = nullptr;
PFNGLLINEWIDTHXOESPROC glLineWidthxOES = nullptr;
PFNGLLOADMATRIXXOESPROC glLoadMatrixxOES = nullptr;
PFNGLMATERIALXOESPROC glMaterialxOES = nullptr;
PFNGLMATERIALXVOESPROC glMaterialxvOES = nullptr;
PFNGLMULTMATRIXXOESPROC glMultMatrixxOES = nullptr;
PFNGLMULTITEXCOORD4XOESPROC glMultiTexCoord4xOES = nullptr;
PFNGLNORMAL3XOESPROC glNormal3xOES = nullptr;
PFNGLORTHOXOESPROC glOrthoxOES = nullptr;
PFNGLPOINTPARAMETERXVOESPROC glPointParameterxvOES = nullptr;
PFNGLPOINTSIZEXOESPROC glPointSizexOES = nullptr;
PFNGLPOLYGONOFFSETXOESPROC glPolygonOffsetxOES = nullptr;
PFNGLROTATEXOESPROC glRotatexOES = nullptr;
PFNGLSCALEXOESPROC glScalexOES = nullptr;
PFNGLTEXENVXOESPROC glTexEnvxOES = nullptr;
PFNGLTEXENVXVOESPROC glTexEnvxvOES = nullptr;
PFNGLTEXPARAMETERXOESPROC glTexParameterxOES = nullptr;
PFNGLTEXPARAMETERXVOESPROC glTexParameterxvOES = nullptr;
PFNGLTRANSLATEXOESPROC glTranslatexOES = nullptr;
PFNGLACCUMXOESPROC glAccumxOES = nullptr;
PFNGLBITMAPXOESPROC glBitmapxOES = nullptr;
PFNGLBLENDCOLORXOESPROC glBlendColorxOES = nullptr;
PFNGLCLEARACCUMXOESPROC glClearAccumxOES = nullptr;
PFNGLCOLOR3XOESPROC glColor3xOES = nullptr;
PFNGLCOLOR3XVOESPROC glColor3xvOES = nullptr;
PFNGLCOLOR4XVOESPROC glColor4xvOES = nullptr;
PFNGLCONVOLUTIONPARAMETERXOESPROC glConvolutionParameterxOES = nullptr;
PFNGLCONVOLUTIONPARAMETERXVOESPROC glConvolutionParameterxvOES = nullptr;
PFNGLEVALCOORD1XOESPROC glEvalCoord1xOES = nullptr;
PFNGLEVALCOORD1XVOESPROC glEvalCoord1xvOES = nullptr;
PFNGLEVALCOORD2XOESPROC glEvalCoord2xOES = nullptr;
PFNGLEVALCOORD2XVOESPROC glEvalCoord2xvOES = nullptr;
PFNGLFEEDBACKBUFFERXOESPROC glFeedbackBufferxOES = nullptr;
PFNGLGETCONVOLUTIONPARAMETERXVOESPROC glGetConvolutionParameterxvOES = nullptr;
PFNGLGETHISTOGRAMPARAMETERXVOESPROC glGetHistogramParameterxvOES = nullptr;
PFNGLGETLIGHTXOESPROC glGetLightxOES = nullptr;
PFNGLGETMAPXVOESPROC glGetMapxvOES = nullptr;
PFNGLGETMATERIALXOESPROC glGetMaterialxOES = nullptr;
PFNGLGETPIXELMAPXVPROC glGetPixelMapxv = nullptr;
PFNGLGETTEXGENXVOESPROC glGetTexGenxvOES = nullptr;
PFNGLGETTEXLEVELPARAMETERXVOESPROC glGetTexLevelParameterxvOES = nullptr;
PFNGLINDEXXOESPROC glIndexxOES = nullptr;
PFNGLINDEXXVOESPROC glIndexxvOES = nullptr;
PFNGLLOADTRANSPOSEMATRIXXOESPROC glLoadTransposeMatrixxOES = nullptr;
PFNGLMAP1XOESPROC glMap1xOES = nullptr;
PFNGLMAP2XOESPROC glMap2xOES = nullptr;
PFNGLMAPGRID1XOESPROC glMapGrid1xOES = nullptr;
PFNGLMAPGRID2XOESPROC glMapGrid2xOES = nullptr;
PFNGLMULTTRANSPOSEMATRIXXOESPROC glMultTransposeMatrixxOES = nullptr;
PFNGLMULTITEXCOORD1XOESPROC glMultiTexCoord1xOES = nullptr;
PFNGLMULTITEXCOORD1XVOESPROC glMultiTexCoord1xvOES = nullptr;
PFNGLMULTITEXCOORD2XOESPROC glMultiTexCoord2xOES = nullptr;
PFNGLMULTITEXCOORD2XVOESPROC glMultiTexCoord2xvOES = nullptr;
PFNGLMULTITEXCOORD3XOESPROC glMultiTexCoord3xOES = nullptr;
PFNGLMULTITEXCOORD3XVOESPROC glMultiTexCoord3xvOES = nullptr;
PFNGLMULTITEXCOORD4XVOESPROC glMultiTexCoord4xvOES = nullptr;
PFNGLNORMAL3XVOESPROC glNormal3xvOES = nullptr;
PFNGLPASSTHROUGHXOESPROC glPassThroughxOES = nullptr;
PFNGLPIXELMAPXPROC glPixelMapx = nullptr;
PFNGLPIXELSTOREXPROC glPixelStorex = nullptr;
PFNGLPIXELTRANSFERXOESPROC glPixelTransferxOES = nullptr;
PFNGLPIXELZOOMXOESPROC glPixelZoomxOES = nullptr;
PFNGLPRIORITIZETEXTURESXOESPROC glPrioritizeTexturesxOES = nullptr;
PFNGLRASTERPOS2XOESPROC glRasterPos2xOES = nullptr;
PFNGLRASTERPOS2XVOESPROC glRasterPos2xvOES = nullptr;
PFNGLRASTERPOS3XOESPROC glRasterPos3xOES = nullptr;
PFNGLRASTERPOS3XVOESPROC glRasterPos3xvOES = nullptr;
PFNGLRASTERPOS4XOESPROC glRasterPos4xOES = nullptr;
PFNGLRASTERPOS4XVOESPROC glRasterPos4xvOES = nullptr;
PFNGLRECTXOESPROC glRectxOES = nullptr;
PFNGLRECTXVOESPROC glRectxvOES = nullptr;
PFNGLTEXCOORD1XOESPROC glTexCoord1xOES = nullptr;
PFNGLTEXCOORD1XVOESPROC glTexCoord1xvOES = nullptr;
PFNGLTEXCOORD2XOESPROC glTexCoord2xOES = nullptr;
PFNGLTEXCOORD2XVOESPROC glTexCoord2xvOES = nullptr;
PFNGLTEXCOORD3XOESPROC glTexCoord3xOES = nullptr;
PFNGLTEXCOORD3XVOESPROC glTexCoord3xvOES = nullptr;
PFNGLTEXCOORD4XOESPROC glTexCoord4xOES = nullptr;
PFNGLTEXCOORD4XVOESPROC glTexCoord4xvOES = nullptr;
PFNGLTEXGENXOESPROC glTexGenxOES = nullptr;
PFNGLTEXGENXVOESPROC glTexGenxvOES = nullptr;
PFNGLVERTEX2XOESPROC glVertex2xOES = nullptr;
PFNGLVERTEX2XVOESPROC glVertex2xvOES = nullptr;
PFNGLVERTEX3XOESPROC glVertex3xOES = nullptr;
PFNGLVERTEX3XVOESPROC glVertex3xvOES = nullptr;
PFNGLVERTEX4XOESPROC glVertex4xOES = nullptr;
PFNGLVERTEX4XVOESPROC glVertex4xvOES = nullptr;
PFNGLQUERYMATRIXXOESPROC glQueryMatrixxOES = nullptr;
PFNGLCLEARDEPTHFOESPROC glClearDepthfOES = nullptr;
PFNGLCLIPPLANEFOESPROC glClipPlanefOES = nullptr;
PFNGLDEPTHRANGEFOESPROC glDepthRangefOES = nullptr;
PFNGLFRUSTUMFOESPROC glFrustumfOES = nullptr;
PFNGLGETCLIPPLANEFOESPROC glGetClipPlanefOES = nullptr;
PFNGLORTHOFOESPROC glOrthofOES = nullptr;
PFNGLFRAMEBUFFERTEXTUREMULTIVIEWOVRPROC glFramebufferTextureMultiviewOVR = nullptr;
PFNGLHINTPGIPROC glHintPGI = nullptr;
PFNGLDETAILTEXFUNCSGISPROC glDetailTexFuncSGIS = nullptr;
PFNGLGETDETAILTEXFUNCSGISPROC glGetDetailTexFuncSGIS = nullptr;
PFNGLFOGFUNCSGISPROC glFogFuncSGIS = nullptr;
PFNGLGETFOGFUNCSGISPROC glGetFogFuncSGIS = nullptr;
PFNGLSAMPLEMASKSGISPROC glSampleMaskSGIS = nullptr;
PFNGLSAMPLEPATTERNSGISPROC glSamplePatternSGIS = nullptr;
PFNGLPIXELTEXGENPARAMETERISGISPROC glPixelTexGenParameteriSGIS = nullptr;
PFNGLPIXELTEXGENPARAMETERIVSGISPROC glPixelTexGenParameterivSGIS = nullptr;
PFNGLPIXELTEXGENPARAMETERFSGISPROC glPixelTexGenParameterfSGIS = nullptr;
PFNGLPIXELTEXGENPARAMETERFVSGISPROC glPixelTexGenParameterfvSGIS = nullptr;
PFNGLGETPIXELTEXGENPARAMETERIVSGISPROC glGetPixelTexGenParameterivSGIS = nullptr;
PFNGLGETPIXELTEXGENPARAMETERFVSGISPROC glGetPixelTexGenParameterfvSGIS = nullptr;
PFNGLPOINTPARAMETERFSGISPROC glPointParameterfSGIS = nullptr;
PFNGLPOINTPARAMETERFVSGISPROC glPointParameterfvSGIS = nullptr;
PFNGLSHARPENTEXFUNCSGISPROC glSharpenTexFuncSGIS = nullptr;
PFNGLGETSHARPENTEXFUNCSGISPROC glGetSharpenTexFuncSGIS = nullptr;
PFNGLTEXIMAGE4DSGISPROC glTexImage4DSGIS = nullptr;
PFNGLTEXSUBIMAGE4DSGISPROC glTexSubImage4DSGIS = nullptr;
PFNGLTEXTURECOLORMASKSGISPROC glTextureColorMaskSGIS = nullptr;
PFNGLGETTEXFILTERFUNCSGISPROC glGetTexFilterFuncSGIS = nullptr;
PFNGLTEXFILTERFUNCSGISPROC glTexFilterFuncSGIS = nullptr;
PFNGLASYNCMARKERSGIXPROC glAsyncMarkerSGIX = nullptr;
PFNGLFINISHASYNCSGIXPROC glFinishAsyncSGIX = nullptr;
PFNGLPOLLASYNCSGIXPROC glPollAsyncSGIX = nullptr;
PFNGLGENASYNCMARKERSSGIXPROC glGenAsyncMarkersSGIX = nullptr;
PFNGLDELETEASYNCMARKERSSGIXPROC glDeleteAsyncMarkersSGIX = nullptr;
PFNGLISASYNCMARKERSGIXPROC glIsAsyncMarkerSGIX = nullptr;
PFNGLFLUSHRASTERSGIXPROC glFlushRasterSGIX = nullptr;
PFNGLFRAGMENTCOLORMATERIALSGIXPROC glFragmentColorMaterialSGIX = nullptr;
PFNGLFRAGMENTLIGHTFSGIXPROC glFragmentLightfSGIX = nullptr;
PFNGLFRAGMENTLIGHTFVSGIXPROC glFragmentLightfvSGIX = nullptr;
PFNGLFRAGMENTLIGHTISGIXPROC glFragmentLightiSGIX = nullptr;
PFNGLFRAGMENTLIGHTIVSGIXPROC glFragmentLightivSGIX = nullptr;
PFNGLFRAGMENTLIGHTMODELFSGIXPROC glFragmentLightModelfSGIX = nullptr;
PFNGLFRAGMENTLIGHTMODELFVSGIXPROC glFragmentLightModelfvSGIX = nullptr;
PFNGLFRAGMENTLIGHTMODELISGIXPROC glFragmentLightModeliSGIX = nullptr;
PFNGLFRAGMENTLIGHTMODELIVSGIXPROC glFragmentLightModelivSGIX = nullptr;
PFNGLFRAGMENTMATERIALFSGIXPROC glFragmentMaterialfSGIX = nullptr;
PFNGLFRAGMENTMATERIALFVSGIXPROC glFragmentMaterialfvSGIX = nullptr;
PFNGLFRAGMENTMATERIALISGIXPROC glFragmentMaterialiSGIX = nullptr;
PFNGLFRAGMENTMATERIALIVSGIXPROC glFragmentMaterialivSGIX = nullptr;
PFNGLGETFRAGMENTLIGHTFVSGIXPROC glGetFragmentLightfvSGIX = nullptr;
PFNGLGETFRAGMENTLIGHTIVSGIXPROC glGetFragmentLightivSGIX = nullptr;
PFNGLGETFRAGMENTMATERIALFVSGIXPROC glGetFragmentMaterialfvSGIX = nullptr;
PFNGLGETFRAGMENTMATERIALIVSGIXPROC glGetFragmentMaterialivSGIX = nullptr;
PFNGLLIGHTENVISGIXPROC glLightEnviSGIX = nullptr;
PFNGLFRAMEZOOMSGIXPROC glFrameZoomSGIX = nullptr;
PFNGLIGLOOINTERFACESGIXPROC glIglooInterfaceSGIX = nullptr;
PFNGLGETINSTRUMENTSSGIXPROC glGetInstrumentsSGIX = nullptr;
PFNGLINSTRUMENTSBUFFERSGIXPROC glInstrumentsBufferSGIX = nullptr;
PFNGLPOLLINSTRUMENTSSGIXPROC glPollInstrumentsSGIX = nullptr;
PFNGLREADINSTRUMENTSSGIXPROC glReadInstrumentsSGIX = nullptr;
PFNGLSTARTINSTRUMENTSSGIXPROC glStartInstrumentsSGIX = nullptr;
PFNGLSTOPINSTRUMENTSSGIXPROC glStopInstrumentsSGIX = nullptr;
PFNGLGETLISTPARAMETERFVSGIXPROC glGetListParameterfvSGIX = nullptr;
PFNGLGETLISTPARAMETERIVSGIXPROC glGetListParameterivSGIX = nullptr;
PFNGLLISTPARAMETERFSGIXPROC glListParameterfSGIX = nullptr;
PFNGLLISTPARAMETERFVSGIXPROC glListParameterfvSGIX = nullptr;
PFNGLLISTPARAMETERISGIXPROC glListParameteriSGIX = nullptr;
PFNGLLISTPARAMETERIVSGIXPROC glListParameterivSGIX = nullptr;
PFNGLPIXELTEXGENSGIXPROC glPixelTexGenSGIX = nullptr;
PFNGLDEFORMATIONMAP3DSGIXPROC glDeformationMap3dSGIX = nullptr;
PFNGLDEFORMATIONMAP3FSGIXPROC glDeformationMap3fSGIX = nullptr;
PFNGLDEFORMSGIXPROC glDeformSGIX = nullptr;
PFNGLLOADIDENTITYDEFORMATIONMAPSGIXPROC glLoadIdentityDeformationMapSGIX = nullptr;
PFNGLREFERENCEPLANESGIXPROC glReferencePlaneSGIX = nullptr;
PFNGLSPRITEPARAMETERFSGIXPROC glSpriteParameterfSGIX = nullptr;
PFNGLSPRITEPARAMETERFVSGIXPROC glSpriteParameterfvSGIX = nullptr;
PFNGLSPRITEPARAMETERISGIXPROC glSpriteParameteriSGIX = nullptr;
PFNGLSPRITEPARAMETERIVSGIXPROC glSpriteParameterivSGIX = nullptr;
PFNGLTAGSAMPLEBUFFERSGIXPROC glTagSampleBufferSGIX = nullptr;
PFNGLCOLORTABLESGIPROC glColorTableSGI = nullptr;
PFNGLCOLORTABLEPARAMETERFVSGIPROC glColorTableParameterfvSGI = nullptr;
PFNGLCOLORTABLEPARAMETERIVSGIPROC glColorTableParameterivSGI = nullptr;
PFNGLCOPYCOLORTABLESGIPROC glCopyColorTableSGI = nullptr;
PFNGLGETCOLORTABLESGIPROC glGetColorTableSGI = nullptr;
PFNGLGETCOLORTABLEPARAMETERFVSGIPROC glGetColorTableParameterfvSGI = nullptr;
PFNGLGETCOLORTABLEPARAMETERIVSGIPROC glGetColorTableParameterivSGI = nullptr;
PFNGLFINISHTEXTURESUNXPROC glFinishTextureSUNX = nullptr;
PFNGLGLOBALALPHAFACTORBSUNPROC glGlobalAlphaFactorbSUN = nullptr;
PFNGLGLOBALALPHAFACTORSSUNPROC glGlobalAlphaFactorsSUN = nullptr;
PFNGLGLOBALALPHAFACTORISUNPROC glGlobalAlphaFactoriSUN = nullptr;
PFNGLGLOBALALPHAFACTORFSUNPROC glGlobalAlphaFactorfSUN = nullptr;
PFNGLGLOBALALPHAFACTORDSUNPROC glGlobalAlphaFactordSUN = nullptr;
PFNGLGLOBALALPHAFACTORUBSUNPROC glGlobalAlphaFactorubSUN = nullptr;
PFNGLGLOBALALPHAFACTORUSSUNPROC glGlobalAlphaFactorusSUN = nullptr;
PFNGLGLOBALALPHAFACTORUISUNPROC glGlobalAlphaFactoruiSUN = nullptr;
PFNGLDRAWMESHARRAYSSUNPROC glDrawMeshArraysSUN = nullptr;
PFNGLREPLACEMENTCODEUISUNPROC glReplacementCodeuiSUN = nullptr;
PFNGLREPLACEMENTCODEUSSUNPROC glReplacementCodeusSUN = nullptr;
PFNGLREPLACEMENTCODEUBSUNPROC glReplacementCodeubSUN = nullptr;
PFNGLREPLACEMENTCODEUIVSUNPROC glReplacementCodeuivSUN = nullptr;
PFNGLREPLACEMENTCODEUSVSUNPROC glReplacementCodeusvSUN = nullptr;
PFNGLREPLACEMENTCODEUBVSUNPROC glReplacementCodeubvSUN = nullptr;
PFNGLREPLACEMENTCODEPOINTERSUNPROC glReplacementCodePointerSUN = nullptr;
PFNGLCOLOR4UBVERTEX2FSUNPROC glColor4ubVertex2fSUN = nullptr;
PFNGLCOLOR4UBVERTEX2FVSUNPROC glColor4ubVertex2fvSUN = nullptr;
PFNGLCOLOR4UBVERTEX3FSUNPROC glColor4ubVertex3fSUN = nullptr;
PFNGLCOLOR4UBVERTEX3FVSUNPROC glColor4ubVertex3fvSUN = nullptr;
PFNGLCOLOR3FVERTEX3FSUNPROC glColor3fVertex3fSUN = nullptr;
PFNGLCOLOR3FVERTEX3FVSUNPROC glColor3fVertex3fvSUN = nullptr;
PFNGLNORMAL3FVERTEX3FSUNPROC glNormal3fVertex3fSUN = nullptr;
PFNGLNORMAL3FVERTEX3FVSUNPROC glNormal3fVertex3fvSUN = nullptr;
PFNGLCOLOR4FNORMAL3FVERTEX3FSUNPROC glColor4fNormal3fVertex3fSUN = nullptr;
PFNGLCOLOR4FNORMAL3FVERTEX3FVSUNPROC glColor4fNormal3fVertex3fvSUN = nullptr;
PFNGLTEXCOORD2FVERTEX3FSUNPROC glTexCoord2fVertex3fSUN = nullptr;
PFNGLTEXCOORD2FVERTEX3FVSUNPROC glTexCoord2fVertex3fvSUN = nullptr;
PFNGLTEXCOORD4FVERTEX4FSUNPROC glTexCoord4fVertex4fSUN = nullptr;
PFNGLTEXCOORD4FVERTEX4FVSUNPROC glTexCoord4fVertex4fvSUN = nullptr;
PFNGLTEXCOORD2FCOLOR4UBVERTEX3FSUNPROC glTexCoord2fColor4ubVertex3fSUN = nullptr;
PFNGLTEXCOORD2FCOLOR4UBVERTEX3FVSUNPROC glTexCoord2fColor4ubVertex3fvSUN = nullptr;
PFNGLTEXCOORD2FCOLOR3FVERTEX3FSUNPROC glTexCoord2fColor3fVertex3fSUN = nullptr;
PFNGLTEXCOORD2FCOLOR3FVERTEX3FVSUNPROC glTexCoord2fColor3fVertex3fvSUN = nullptr;
PFNGLTEXCOORD2FNORMAL3FVERTEX3FSUNPROC glTexCoord2fNormal3fVertex3fSUN = nullptr;
PFNGLTEXCOORD2FNORMAL3FVERTEX3FVSUNPROC glTexCoord2fNormal3fVertex3fvSUN = nullptr;
PFNGLTEXCOORD2FCOLOR4FNORMAL3FVERTEX3FSUNPROC glTexCoord2fColor4fNormal3fVertex3fSUN = nullptr;
PFNGLTEXCOORD2FCOLOR4FNORMAL3FVERTEX3FVSUNPROC glTexCoord2fColor4fNormal3fVertex3fvSUN = nullptr;
PFNGLTEXCOORD4FCOLOR4FNORMAL3FVERTEX4FSUNPROC glTexCoord4fColor4fNormal3fVertex4fSUN = nullptr;
PFNGLTEXCOORD4FCOLOR4FNORMAL3FVERTEX4FVSUNPROC glTexCoord4fColor4fNormal3fVertex4fvSUN = nullptr;
PFNGLREPLACEMENTCODEUIVERTEX3FSUNPROC glReplacementCodeuiVertex3fSUN = nullptr;
PFNGLREPLACEMENTCODEUIVERTEX3FVSUNPROC glReplacementCodeuiVertex3fvSUN = nullptr;
PFNGLREPLACEMENTCODEUICOLOR4UBVERTEX3FSUNPROC glReplacementCodeuiColor4ubVertex3fSUN = nullptr;
PFNGLREPLACEMENTCODEUICOLOR4UBVERTEX3FVSUNPROC glReplacementCodeuiColor4ubVertex3fvSUN = nullptr;
PFNGLREPLACEMENTCODEUICOLOR3FVERTEX3FSUNPROC glReplacementCodeuiColor3fVertex3fSUN = nullptr;
PFNGLREPLACEMENTCODEUICOLOR3FVERTEX3FVSUNPROC glReplacementCodeuiColor3fVertex3fvSUN = nullptr;
PFNGLREPLACEMENTCODEUINORMAL3FVERTEX3FSUNPROC glReplacementCodeuiNormal3fVertex3fSUN = nullptr;
PFNGLREPLACEMENTCODEUINORMAL3FVERTEX3FVSUNPROC glReplacementCodeuiNormal3fVertex3fvSUN = nullptr;
PFNGLREPLACEMENTCODEUICOLOR4FNORMAL3FVERTEX3FSUNPROC glReplacementCodeuiColor4fNormal3fVertex3fSUN = nullptr;
PFNGLREPLACEMENTCODEUICOLOR4FNORMAL3FVERTEX3FVSUNPROC glReplacementCodeuiColor4fNormal3fVertex3fvSUN = nullptr;
PFNGLREPLACEMENTCODEUITEXCOORD2FVERTEX3FSUNPROC glReplacementCodeuiTexCoord2fVertex3fSUN = nullptr;
PFNGLREPLACEMENTCODEUITEXCOORD2FVERTEX3FVSUNPROC glReplacementCodeuiTexCoord2fVertex3fvSUN = nullptr;
PFNGLREPLACEMENTCODEUITEXCOORD2FNORMAL3FVERTEX3FSUNPROC glReplacementCodeuiTexCoord2fNormal3fVertex3fSUN = nullptr;
PFNGLREPLACEMENTCODEUITEXCOORD2FNORMAL3FVERTEX3FVSUNPROC glReplacementCodeuiTexCoord2fNormal3fVertex3fvSUN = nullptr;
PFNGLREPLACEMENTCODEUITEXCOORD2FCOLOR4FNORMAL3FVERTEX3FSUNPROC glReplacementCodeuiTexCoord2fColor4fNormal3fVertex3fSUN = nullptr;
PFNGLREPLACEMENTCODEUITEXCOORD2FCOLOR4FNORMAL3FVERTEX3FVSUNPROC glReplacementCodeuiTexCoord2fColor4fNormal3fVertex3fvSUN = nullptr;

std::int32_t is_GL_3DFX_multisample_supported = 0;
std::int32_t is_GL_3DFX_tbuffer_supported = 0;
std::int32_t is_GL_3DFX_texture_compression_FXT1_supported = 0;
std::int32_t is_GL_AMD_blend_minmax_factor_supported = 0;
std::int32_t is_GL_AMD_conservative_depth_supported = 0;
std::int32_t is_GL_AMD_debug_output_supported = 0;
std::int32_t is_GL_AMD_depth_clamp_separate_supported = 0;
std::int32_t is_GL_AMD_draw_buffers_blend_supported = 0;
std::int32_t is_GL_AMD_framebuffer_multisample_advanced_supported = 0;
std::int32_t is_GL_AMD_framebuffer_sample_positions_supported = 0;
std::int32_t is_GL_AMD_gcn_shader_supported = 0;
std::int32_t is_GL_AMD_gpu_shader_half_float_supported = 0;
std::int32_t is_GL_AMD_gpu_shader_int16_supported = 0;
std::int32_t is_GL_AMD_gpu_shader_int64_supported = 0;
std::int32_t is_GL_AMD_interleaved_elements_supported = 0;
std::int32_t is_GL_AMD_multi_draw_indirect_supported = 0;
std::int32_t is_GL_AMD_name_gen_delete_supported = 0;
std::int32_t is_GL_AMD_occlusion_query_event_supported = 0;
std::int32_t is_GL_AMD_performance_monitor_supported = 0;
std::int32_t is_GL_AMD_pinned_memory_supported = 0;
std::int32_t is_GL_AMD_query_buffer_object_supported = 0;
std::int32_t is_GL_AMD_sample_positions_supported = 0;
std::int32_t is_GL_AMD_seamless_cubemap_per_texture_supported = 0;
std::int32_t is_GL_AMD_shader_atomic_counter_ops_supported = 0;
std::int32_t is_GL_AMD_shader_ballot_supported = 0;
std::int32_t is_GL_AMD_shader_explicit_vertex_parameter_supported = 0;
std::int32_t is_GL_AMD_shader_gpu_shader_half_float_fetch_supported = 0;
std::int32_t is_GL_AMD_shader_image_load_store_lod_supported = 0;
std::int32_t is_GL_AMD_shader_stencil_export_supported = 0;
std::int32_t is_GL_AMD_shader_trinary_minmax_supported = 0;
std::int32_t is_GL_AMD_sparse_texture_supported = 0;
std::int32_t is_GL_AMD_stencil_operation_extended_supported = 0;
std::int32_t is_GL_AMD_texture_gather_bias_lod_supported = 0;
std::int32_t is_GL_AMD_texture_texture4_supported = 0;
std::int32_t is_GL_AMD_transform_feedback3_lines_triangles_supported = 0;
std::int32_t is_GL_AMD_transform_feedback4_supported = 0;
std::int32_t is_GL_AMD_vertex_shader_layer_supported = 0;
std::int32_t is_GL_AMD_vertex_shader_tessellator_supported = 0;
std::int32_t is_GL_AMD_vertex_shader_viewport_index_supported = 0;
std::int32_t is_GL_APPLE_aux_depth_stencil_supported = 0;
std::int32_t is_GL_APPLE_client_storage_supported = 0;
std::int32_t is_GL_APPLE_element_array_supported = 0;
std::int32_t is_GL_APPLE_fence_supported = 0;
std::int32_t is_GL_APPLE_float_pixels_supported = 0;
std::int32_t is_GL_APPLE_flush_buffer_range_supported = 0;
std::int32_t is_GL_APPLE_object_purgeable_supported = 0;
std::int32_t is_GL_APPLE_rgb_422_supported = 0;
std::int32_t is_GL_APPLE_row_bytes_supported = 0;
std::int32_t is_GL_APPLE_specular_vector_supported = 0;
std::int32_t is_GL_APPLE_texture_range_supported = 0;
std::int32_t is_GL_APPLE_transform_hint_supported = 0;
std::int32_t is_GL_APPLE_vertex_array_object_supported = 0;
std::int32_t is_GL_APPLE_vertex_array_range_supported = 0;
std::int32_t is_GL_APPLE_vertex_program_evaluators_supported = 0;
std::int32_t is_GL_APPLE_ycbcr_422_supported = 0;
std::int32_t is_GL_ATI_draw_buffers_supported = 0;
std::int32_t is_GL_ATI_element_array_supported = 0;
std::int32_t is_GL_ATI_envmap_bumpmap_supported = 0;
std::int32_t is_GL_ATI_fragment_shader_supported = 0;
std::int32_t is_GL_ATI_map_object_buffer_supported = 0;
std::int32_t is_GL_ATI_meminfo_supported = 0;
std::int32_t is_GL_ATI_pixel_format_float_supported = 0;
std::int32_t is_GL_ATI_pn_triangles_supported = 0;
std::int32_t is_GL_ATI_separate_stencil_supported = 0;
std::int32_t is_GL_ATI_text_fragment_shader_supported = 0;
std::int32_t is_GL_ATI_texture_env_combine3_supported = 0;
std::int32_t is_GL_ATI_texture_float_supported = 0;
std::int32_t is_GL_ATI_texture_mirror_once_supported = 0;
std::int32_t is_GL_ATI_vertex_array_object_supported = 0;
std::int32_t is_GL_ATI_vertex_attrib_array_object_supported = 0;
std::int32_t is_GL_ATI_vertex_streams_supported = 0;
std::int32_t is_GL_GREMEDY_frame_terminator_supported = 0;
std::int32_t is_GL_GREMEDY_string_marker_supported = 0;
std::int32_t is_GL_HP_convolution_border_modes_supported = 0;
std::int32_t is_GL_HP_image_transform_supported = 0;
std::int32_t is_GL_HP_occlusion_test_supported = 0;
std::int32_t is_GL_HP_texture_lighting_supported = 0;
std::int32_t is_GL_IBM_cull_vertex_supported = 0;
std::int32_t is_GL_IBM_multimode_draw_arrays_supported = 0;
std::int32_t is_GL_IBM_rasterpos_clip_supported = 0;
std::int32_t is_GL_IBM_static_data_supported = 0;
std::int32_t is_GL_IBM_texture_mirrored_repeat_supported = 0;
std::int32_t is_GL_IBM_vertex_array_lists_supported = 0;
std::int32_t is_GL_INGR_blend_func_separate_supported = 0;
std::int32_t is_GL_INGR_color_clamp_supported = 0;
std::int32_t is_GL_INGR_interlace_read_supported = 0;
std::int32_t is_GL_INTEL_blackhole_render_supported = 0;
std::int32_t is_GL_INTEL_conservative_rasterization_supported = 0;
std::int32_t is_GL_INTEL_fragment_shader_ordering_supported = 0;
std::int32_t is_GL_INTEL_framebuffer_CMAA_supported = 0;
std::int32_t is_GL_INTEL_map_texture_supported = 0;
std::int32_t is_GL_INTEL_parallel_arrays_supported = 0;
std::int32_t is_GL_INTEL_performance_query_supported = 0;
std::int32_t is_GL_KHR_blend_equation_advanced_supported = 0;
std::int32_t is_GL_KHR_blend_equation_advanced_coherent_supported = 0;
std::int32_t is_GL_KHR_context_flush_control_supported = 0;
std::int32_t is_GL_KHR_debug_supported = 0;
std::int32_t is_GL_KHR_no_error_supported = 0;
std::int32_t is_GL_KHR_parallel_shader_compile_supported = 0;
std::int32_t is_GL_KHR_robust_buffer_access_behavior_supported = 0;
std::int32_t is_GL_KHR_robustness_supported = 0;
std::int32_t is_GL_KHR_shader_subgroup_supported = 0;
std::int32_t is_GL_KHR_texture_compression_astc_hdr_supported = 0;
std::int32_t is_GL_KHR_texture_compression_astc_ldr_supported = 0;
std::int32_t is_GL_KHR_texture_compression_astc_sliced_3d_supported = 0;
std::int32_t is_GL_MESAX_texture_stack_supported = 0;
std::int32_t is_GL_MESA_framebuffer_flip_x_supported = 0;
std::int32_t is_GL_MESA_framebuffer_flip_y_supported = 0;
std::int32_t is_GL_MESA_framebuffer_swap_xy_supported = 0;
std::int32_t is_GL_MESA_pack_invert_supported = 0;
std::int32_t is_GL_MESA_program_binary_formats_supported = 0;
std::int32_t is_GL_MESA_resize_buffers_supported = 0;
std::int32_t is_GL_MESA_shader_integer_functions_supported = 0;
std::int32_t is_GL_MESA_tile_raster_order_supported = 0;
std::int32_t is_GL_MESA_ycbcr_texture_supported = 0;
std::int32_t is_GL_OES_byte_coordinates_supported = 0;
std::int32_t is_GL_OES_compressed_paletted_texture_supported = 0;
std::int32_t is_GL_OES_fixed_point_supported = 0;
std::int32_t is_GL_OES_query_matrix_supported = 0;
std::int32_t is_GL_OES_read_format_supported = 0;
std::int32_t is_GL_OES_single_precision_supported = 0;
std::int32_t is_GL_OML_interlace_supported = 0;
std::int32_t is_GL_OML_resample_supported = 0;
std::int32_t is_GL_OML_subsample_supported = 0;
std::int32_t is_GL_OVR_multiview_supported = 0;
std::int32_t is_GL_OVR_multiview2_supported = 0;
std::int32_t is_GL_PGI_misc_hints_supported = 0;
std::int32_t is_GL_PGI_vertex_hints_supported = 0;
std::int32_t is_GL_REND_screen_coordinates_supported = 0;
std::int32_t is_GL_S3_s3tc_supported = 0;
std::int32_t is_GL_SGIS_detail_texture_supported = 0;
std::int32_t is_GL_SGIS_fog_function_supported = 0;
std::int32_t is_GL_SGIS_generate_mipmap_supported = 0;
std::int32_t is_GL_SGIS_multisample_supported = 0;
std::int32_t is_GL_SGIS_pixel_texture_supported = 0;
std::int32_t is_GL_SGIS_point_line_texgen_supported = 0;
std::int32_t is_GL_SGIS_point_parameters_supported = 0;
std::int32_t is_GL_SGIS_sharpen_texture_supported = 0;
std::int32_t is_GL_SGIS_texture4D_supported = 0;
std::int32_t is_GL_SGIS_texture_border_clamp_supported = 0;
std::int32_t is_GL_SGIS_texture_color_mask_supported = 0;
std::int32_t is_GL_SGIS_texture_edge_clamp_supported = 0;
std::int32_t is_GL_SGIS_texture_filter4_supported = 0;
std::int32_t is_GL_SGIS_texture_lod_supported = 0;
std::int32_t is_GL_SGIS_texture_select_supported = 0;
std::int32_t is_GL_SGIX_async_supported = 0;
std::int32_t is_GL_SGIX_async_histogram_supported = 0;
std::int32_t is_GL_SGIX_async_pixel_supported = 0;
std::int32_t is_GL_SGIX_blend_alpha_minmax_supported = 0;
std::int32_t is_GL_SGIX_calligraphic_fragment_supported = 0;
std::int32_t is_GL_SGIX_clipmap_supported = 0;
std::int32_t is_GL_SGIX_convolution_accuracy_supported = 0;
std::int32_t is_GL_SGIX_depth_pass_instrument_supported = 0;
std::int32_t is_GL_SGIX_depth_texture_supported = 0;
std::int32_t is_GL_SGIX_flush_raster_supported = 0;
std::int32_t is_GL_SGIX_fog_offset_supported = 0;
std::int32_t is_GL_SGIX_fragment_lighting_supported = 0;
std::int32_t is_GL_SGIX_framezoom_supported = 0;
std::int32_t is_GL_SGIX_igloo_interface_supported = 0;
std::int32_t is_GL_SGIX_instruments_supported = 0;
std::int32_t is_GL_SGIX_interlace_supported = 0;
std::int32_t is_GL_SGIX_ir_instrument1_supported = 0;
std::int32_t is_GL_SGIX_list_priority_supported = 0;
std::int32_t is_GL_SGIX_pixel_texture_supported = 0;
std::int32_t is_GL_SGIX_pixel_tiles_supported = 0;
std::int32_t is_GL_SGIX_polynomial_ffd_supported = 0;
std::int32_t is_GL_SGIX_reference_plane_supported = 0;
std::int32_t is_GL_SGIX_resample_supported = 0;
std::int32_t is_GL_SGIX_scalebias_hint_supported = 0;
std::int32_t is_GL_SGIX_shadow_supported = 0;
std::int32_t is_GL_SGIX_shadow_ambient_supported = 0;
std::int32_t is_GL_SGIX_sprite_supported = 0;
std::int32_t is_GL_SGIX_subsample_supported = 0;
std::int32_t is_GL_SGIX_tag_sample_buffer_supported = 0;
std::int32_t is_GL_SGIX_texture_add_env_supported = 0;
std::int32_t is_GL_SGIX_texture_coordinate_clamp_supported = 0;
std::int32_t is_GL_SGIX_texture_lod_bias_supported = 0;
std::int32_t is_GL_SGIX_texture_multi_buffer_supported = 0;
std::int32_t is_GL_SGIX_texture_scale_bias_supported = 0;
std::int32_t is_GL_SGIX_vertex_preclip_supported = 0;
std::int32_t is_GL_SGIX_ycrcb_supported = 0;
std::int32_t is_GL_SGIX_ycrcb_subsample_supported = 0;
std::int32_t is_GL_SGIX_ycrcba_supported = 0;
std::int32_t is_GL_SGI_color_matrix_supported = 0;
std::int32_t is_GL_SGI_color_table_supported = 0;
std::int32_t is_GL_SGI_texture_color_table_supported = 0;
std::int32_t is_GL_SUNX_constant_data_supported = 0;
std::int32_t is_GL_SUN_convolution_border_modes_supported = 0;
std::int32_t is_GL_SUN_global_alpha_supported = 0;
std::int32_t is_GL_SUN_mesh_array_supported = 0;
std::int32_t is_GL_SUN_slice_accum_supported = 0;
std::int32_t is_GL_SUN_triangle_list_supported = 0;
std::int32_t is_GL_SUN_vertex_supported = 0;
std::int32_t is_GL_WIN_phong_shading_supported = 0;
std::int32_t is_GL_WIN_specular_fog_supported = 0;

void init_GL_3DFX_multisample() {}

void init_GL_3DFX_tbuffer() {
    glTbufferMask3DFX = reinterpret_cast<PFNGLTBUFFERMASK3DFXPROC>(__gl_GetProcAddress("glTbufferMask3DFX"));
}

void init_GL_3DFX_texture_compression_FXT1() {}

void init_GL_AMD_blend_minmax_factor() {}

void init_GL_AMD_conservative_depth() {}

void init_GL_AMD_debug_output() {
    glDebugMessageEnableAMD = reinterpret_cast<PFNGLDEBUGMESSAGEENABLEAMDPROC>(__gl_GetProcAddress("glDebugMessageEnableAMD"));
    glDebugMessageInsertAMD = reinterpret_cast<PFNGLDEBUGMESSAGEINSERTAMDPROC>(__gl_GetProcAddress("glDebugMessageInsertAMD"));
    glDebugMessageCallbackAMD = reinterpret_cast<PFNGLDEBUGMESSAGECALLBACKAMDPROC>(__gl_GetProcAddress("glDebugMessageCallbackAMD"));
    glGetDebugMessageLogAMD = reinterpret_cast<PFNGLGETDEBUGMESSAGELOGAMDPROC>(__gl_GetProcAddress("glGetDebugMessageLogAMD"));
}

void init_GL_AMD_depth_clamp_separate() {}

void init_GL_AMD_draw_buffers_blend() {
    glBlendFuncIndexedAMD = reinterpret_cast<PFNGLBLENDFUNCINDEXEDAMDPROC>(__gl_GetProcAddress("glBlendFuncIndexedAMD"));
    glBlendFuncSeparateIndexedAMD = reinterpret_cast<PFNGLBLENDFUNCSEPARATEINDEXEDAMDPROC>(__gl_GetProcAddress("glBlendFuncSeparateIndexedAMD"));
    glBlendEquationIndexedAMD = reinterpret_cast<PFNGLBLENDEQUATIONINDEXEDAMDPROC>(__gl_GetProcAddress("glBlendEquationIndexedAMD"));
    glBlendEquationSeparateIndexedAMD = reinterpret_cast<PFNGLBLENDEQUATIONSEPARATEINDEXEDAMDPROC>(__gl_GetProcAddress("glBlendEquationSeparateIndexedAMD"));
}

void init_GL_AMD_framebuffer_multisample_advanced() {
    glRenderbufferStorageMultisampleAdvancedAMD = reinterpret_cast<PFNGLRENDERBUFFERSTORAGEMULTISAMPLEADVANCEDAMDPROC>(__gl_GetProcAddress("glRenderbufferStorageMultisampleAdvancedAMD"));
    glNamedRenderbufferStorageMultisampleAdvancedAMD = reinterpret_cast<PFNGLNAMEDRENDERBUFFERSTORAGEMULTISAMPLEADVANCEDAMDPROC>(__gl_GetProcAddress("glNamedRenderbufferStorageMultisampleAdvancedAMD"));
}

void init_GL_AMD_framebuffer_sample_positions() {
    glFramebufferSamplePositionsfvAMD = reinterpret_cast<PFNGLFRAMEBUFFERSAMPLEPOSITIONSFVAMDPROC>(__gl_GetProcAddress("glFramebufferSamplePositionsfvAMD"));
    glNamedFramebufferSamplePositionsfvAMD = reinterpret_cast<PFNGLNAMEDFRAMEBUFFERSAMPLEPOSITIONSFVAMDPROC>(__gl_GetProcAddress("glNamedFramebufferSamplePositionsfvAMD"));
    glGetFramebufferParameterfvAMD = reinterpret_cast<PFNGLGETFRAMEBUFFERPARAMETERFVAMDPROC>(__gl_GetProcAddress("glGetFramebufferParameterfvAMD"));
    glGetNamedFramebufferParameterfvAMD = reinterpret_cast<PFNGLGETNAMEDFRAMEBUFFERPARAMETERFVAMDPROC>(__gl_GetProcAddress("glGetNamedFramebufferParameterfvAMD"));
}

void init_GL_AMD_gcn_shader() {}

void init_GL_AMD_gpu_shader_half_float() {}

void init_GL_AMD_gpu_shader_int16() {}

void init_GL_AMD_gpu_shader_int64() {
    glUniform1i64NV = reinterpret_cast<PFNGLUNIFORM1I64NVPROC>(__gl_GetProcAddress("glUniform1i64NV"));
    glUniform2i64NV = reinterpret_cast<PFNGLUNIFORM2I64NVPROC>(__gl_GetProcAddress("glUniform2i64NV"));
    glUniform3i64NV = reinterpret_cast<PFNGLUNIFORM3I64NVPROC>(__gl_GetProcAddress("glUniform3i64NV"));
    glUniform4i64NV = reinterpret_cast<PFNGLUNIFORM4I64NVPROC>(__gl_GetProcAddress("glUniform4i64NV"));
    glUniform1i64vNV = reinterpret_cast<PFNGLUNIFORM1I64VNVPROC>(__gl_GetProcAddress("glUniform1i64vNV"));
    glUniform2i64vNV = reinterpret_cast<PFNGLUNIFORM2I64VNVPROC>(__gl_GetProcAddress("glUniform2i64vNV"));
    glUniform3i64vNV = reinterpret_cast<PFNGLUNIFORM3I64VNVPROC>(__gl_GetProcAddress("glUniform3i64vNV"));
    glUniform4i64vNV = reinterpret_cast<PFNGLUNIFORM4I64VNVPROC>(__gl_GetProcAddress("glUniform4i64vNV"));
    glUniform1ui64NV = reinterpret_cast<PFNGLUNIFORM1UI64NVPROC>(__gl_GetProcAddress("glUniform1ui64NV"));
    glUniform2ui64NV = reinterpret_cast<PFNGLUNIFORM2UI64NVPROC>(__gl_GetProcAddress("glUniform2ui64NV"));
    glUniform3ui64NV = reinterpret_cast<PFNGLUNIFORM3UI64NVPROC>(__gl_GetProcAddress("glUniform3ui64NV"));
    glUniform4ui64NV = reinterpret_cast<PFNGLUNIFORM4UI64NVPROC>(__gl_GetProcAddress("glUniform4ui64NV"));
    glUniform1ui64vNV = reinterpret_cast<PFNGLUNIFORM1UI64VNVPROC>(__gl_GetProcAddress("glUniform1ui64vNV"));
    glUniform2ui64vNV = reinterpret_cast<PFNGLUNIFORM2UI64VNVPROC>(__gl_GetProcAddress("glUniform2ui64vNV"));
    glUniform3ui64vNV = reinterpret_cast<PFNGLUNIFORM3UI64VNVPROC>(__gl_GetProcAddress("glUniform3ui64vNV"));
    glUniform4ui64vNV = reinterpret_cast<PFNGLUNIFORM4UI64VNVPROC>(__gl_GetProcAddress("glUniform4ui64vNV"));
    glGetUniformi64vNV = reinterpret_cast<PFNGLGETUNIFORMI64VNVPROC>(__gl_GetProcAddress("glGetUniformi64vNV"));
    glGetUniformui64vNV = reinterpret_cast<PFNGLGETUNIFORMUI64VNVPROC>(__gl_GetProcAddress("glGetUniformui64vNV"));
    glProgramUniform1i64NV = reinterpret_cast<PFNGLPROGRAMUNIFORM1I64NVPROC>(__gl_GetProcAddress("glProgramUniform1i64NV"));
    glProgramUniform2i64NV = reinterpret_cast<PFNGLPROGRAMUNIFORM2I64NVPROC>(__gl_GetProcAddress("glProgramUniform2i64NV"));
    glProgramUniform3i64NV = reinterpret_cast<PFNGLPROGRAMUNIFORM3I64NVPROC>(__gl_GetProcAddress("glProgramUniform3i64NV"));
    glProgramUniform4i64NV = reinterpret_cast<PFNGLPROGRAMUNIFORM4I64NVPROC>(__gl_GetProcAddress("glProgramUniform4i64NV"));
    glProgramUniform1i64vNV = reinterpret_cast<PFNGLPROGRAMUNIFORM1I64VNVPROC>(__gl_GetProcAddress("glProgramUniform1i64vNV"));
    glProgramUniform2i64vNV = reinterpret_cast<PFNGLPROGRAMUNIFORM2I64VNVPROC>(__gl_GetProcAddress("glProgramUniform2i64vNV"));
    glProgramUniform3i64vNV = reinterpret_cast<PFNGLPROGRAMUNIFORM3I64VNVPROC>(__gl_GetProcAddress("glProgramUniform3i64vNV"));
    glProgramUniform4i64vNV = reinterpret_cast<PFNGLPROGRAMUNIFORM4I64VNVPROC>(__gl_GetProcAddress("glProgramUniform4i64vNV"));
    glProgramUniform1ui64NV = reinterpret_cast<PFNGLPROGRAMUNIFORM1UI64NVPROC>(__gl_GetProcAddress("glProgramUniform1ui64NV"));
    glProgramUniform2ui64NV = reinterpret_cast<PFNGLPROGRAMUNIFORM2UI64NVPROC>(__gl_GetProcAddress("glProgramUniform2ui64NV"));
    glProgramUniform3ui64NV = reinterpret_cast<PFNGLPROGRAMUNIFORM3UI64NVPROC>(__gl_GetProcAddress("glProgramUniform3ui64NV"));
    glProgramUniform4ui64NV = reinterpret_cast<PFNGLPROGRAMUNIFORM4UI64NVPROC>(__gl_GetProcAddress("glProgramUniform4ui64NV"));
    glProgramUniform1ui64vNV = reinterpret_cast<PFNGLPROGRAMUNIFORM1UI64VNVPROC>(__gl_GetProcAddress("glProgramUniform1ui64vNV"));
    glProgramUniform2ui64vNV = reinterpret_cast<PFNGLPROGRAMUNIFORM2UI64VNVPROC>(__gl_GetProcAddress("glProgramUniform2ui64vNV"));
    glProgramUniform3ui64vNV = reinterpret_cast<PFNGLPROGRAMUNIFORM3UI64VNVPROC>(__gl_GetProcAddress("glProgramUniform3ui64vNV"));
    glProgramUniform4ui64vNV = reinterpret_cast<PFNGLPROGRAMUNIFORM4UI64VNVPROC>(__gl_GetProcAddress("glProgramUniform4ui64vNV"));
}

void init_GL_AMD_interleaved_elements() {
    glVertexAttribParameteriAMD = reinterpret_cast<PFNGLVERTEXATTRIBPARAMETERIAMDPROC>(__gl_GetProcAddress("glVertexAttribParameteriAMD"));
}

void init_GL_AMD_multi_draw_indirect() {
    glMultiDrawArraysIndirectAMD = reinterpret_cast<PFNGLMULTIDRAWARRAYSINDIRECTAMDPROC>(__gl_GetProcAddress("glMultiDrawArraysIndirectAMD"));
    glMultiDrawElementsIndirectAMD = reinterpret_cast<PFNGLMULTIDRAWELEMENTSINDIRECTAMDPROC>(__gl_GetProcAddress("glMultiDrawElementsIndirectAMD"));
}

void init_GL_AMD_name_gen_delete() {
    glGenNamesAMD = reinterpret_cast<PFNGLGENNAMESAMDPROC>(__gl_GetProcAddress("glGenNamesAMD"));
    glDeleteNamesAMD = reinterpret_cast<PFNGLDELETENAMESAMDPROC>(__gl_GetProcAddress("glDeleteNamesAMD"));
    glIsNameAMD = reinterpret_cast<PFNGLISNAMEAMDPROC>(__gl_GetProcAddress("glIsNameAMD"));
}

void init_GL_AMD_occlusion_query_event() {
    glQueryObjectParameteruiAMD = reinterpret_cast<PFNGLQUERYOBJECTPARAMETERUIAMDPROC>(__gl_GetProcAddress("glQueryObjectParameteruiAMD"));
}

void init_GL_AMD_performance_monitor() {
    glGetPerfMonitorGroupsAMD = reinterpret_cast<PFNGLGETPERFMONITORGROUPSAMDPROC>(__gl_GetProcAddress("glGetPerfMonitorGroupsAMD"));
    glGetPerfMonitorCountersAMD = reinterpret_cast<PFNGLGETPERFMONITORCOUNTERSAMDPROC>(__gl_GetProcAddress("glGetPerfMonitorCountersAMD"));
    glGetPerfMonitorGroupStringAMD = reinterpret_cast<PFNGLGETPERFMONITORGROUPSTRINGAMDPROC>(__gl_GetProcAddress("glGetPerfMonitorGroupStringAMD"));
    glGetPerfMonitorCounterStringAMD = reinterpret_cast<PFNGLGETPERFMONITORCOUNTERSTRINGAMDPROC>(__gl_GetProcAddress("glGetPerfMonitorCounterStringAMD"));
    glGetPerfMonitorCounterInfoAMD = reinterpret_cast<PFNGLGETPERFMONITORCOUNTERINFOAMDPROC>(__gl_GetProcAddress("glGetPerfMonitorCounterInfoAMD"));
    glGenPerfMonitorsAMD = reinterpret_cast<PFNGLGENPERFMONITORSAMDPROC>(__gl_GetProcAddress("glGenPerfMonitorsAMD"));
    glDeletePerfMonitorsAMD = reinterpret_cast<PFNGLDELETEPERFMONITORSAMDPROC>(__gl_GetProcAddress("glDeletePerfMonitorsAMD"));
    glSelectPerfMonitorCountersAMD = reinterpret_cast<PFNGLSELECTPERFMONITORCOUNTERSAMDPROC>(__gl_GetProcAddress("glSelectPerfMonitorCountersAMD"));
    glBeginPerfMonitorAMD = reinterpret_cast<PFNGLBEGINPERFMONITORAMDPROC>(__gl_GetProcAddress("glBeginPerfMonitorAMD"));
    glEndPerfMonitorAMD = reinterpret_cast<PFNGLENDPERFMONITORAMDPROC>(__gl_GetProcAddress("glEndPerfMonitorAMD"));
    glGetPerfMonitorCounterDataAMD = reinterpret_cast<PFNGLGETPERFMONITORCOUNTERDATAAMDPROC>(__gl_GetProcAddress("glGetPerfMonitorCounterDataAMD"));
}

void init_GL_AMD_pinned_memory() {}

void init_GL_AMD_query_buffer_object() {}

void init_GL_AMD_sample_positions() {
    glSetMultisamplefvAMD = reinterpret_cast<PFNGLSETMULTISAMPLEFVAMDPROC>(__gl_GetProcAddress("glSetMultisamplefvAMD"));
}

void init_GL_AMD_seamless_cubemap_per_texture() {}

void init_GL_AMD_shader_atomic_counter_ops() {}

void init_GL_AMD_shader_ballot() {}

void init_GL_AMD_shader_explicit_vertex_parameter() {}

void init_GL_AMD_shader_gpu_shader_half_float_fetch() {}

void init_GL_AMD_shader_image_load_store_lod() {}

void init_GL_AMD_shader_stencil_export() {}

void init_GL_AMD_shader_trinary_minmax() {}

void init_GL_AMD_sparse_texture() {
    glTexStorageSparseAMD = reinterpret_cast<PFNGLTEXSTORAGESPARSEAMDPROC>(__gl_GetProcAddress("glTexStorageSparseAMD"));
    glTextureStorageSparseAMD = reinterpret_cast<PFNGLTEXTURESTORAGESPARSEAMDPROC>(__gl_GetProcAddress("glTextureStorageSparseAMD"));
}

void init_GL_AMD_stencil_operation_extended() {
    glStencilOpValueAMD = reinterpret_cast<PFNGLSTENCILOPVALUEAMDPROC>(__gl_GetProcAddress("glStencilOpValueAMD"));
}

void init_GL_AMD_texture_gather_bias_lod() {}

void init_GL_AMD_texture_texture4() {}

void init_GL_AMD_transform_feedback3_lines_triangles() {}

void init_GL_AMD_transform_feedback4() {}

void init_GL_AMD_vertex_shader_layer() {}

void init_GL_AMD_vertex_shader_tessellator() {
    glTessellationFactorAMD = reinterpret_cast<PFNGLTESSELLATIONFACTORAMDPROC>(__gl_GetProcAddress("glTessellationFactorAMD"));
    glTessellationModeAMD = reinterpret_cast<PFNGLTESSELLATIONMODEAMDPROC>(__gl_GetProcAddress("glTessellationModeAMD"));
}

void init_GL_AMD_vertex_shader_viewport_index() {}

void init_GL_APPLE_aux_depth_stencil() {}

void init_GL_APPLE_client_storage() {}

void init_GL_APPLE_element_array() {
    glElementPointerAPPLE = reinterpret_cast<PFNGLELEMENTPOINTERAPPLEPROC>(__gl_GetProcAddress("glElementPointerAPPLE"));
    glDrawElementArrayAPPLE = reinterpret_cast<PFNGLDRAWELEMENTARRAYAPPLEPROC>(__gl_GetProcAddress("glDrawElementArrayAPPLE"));
    glDrawRangeElementArrayAPPLE = reinterpret_cast<PFNGLDRAWRANGEELEMENTARRAYAPPLEPROC>(__gl_GetProcAddress("glDrawRangeElementArrayAPPLE"));
    glMultiDrawElementArrayAPPLE = reinterpret_cast<PFNGLMULTIDRAWELEMENTARRAYAPPLEPROC>(__gl_GetProcAddress("glMultiDrawElementArrayAPPLE"));
    glMultiDrawRangeElementArrayAPPLE = reinterpret_cast<PFNGLMULTIDRAWRANGEELEMENTARRAYAPPLEPROC>(__gl_GetProcAddress("glMultiDrawRangeElementArrayAPPLE"));
}

void init_GL_APPLE_fence() {
    glGenFencesAPPLE = reinterpret_cast<PFNGLGENFENCESAPPLEPROC>(__gl_GetProcAddress("glGenFencesAPPLE"));
    glDeleteFencesAPPLE = reinterpret_cast<PFNGLDELETEFENCESAPPLEPROC>(__gl_GetProcAddress("glDeleteFencesAPPLE"));
    glSetFenceAPPLE = reinterpret_cast<PFNGLSETFENCEAPPLEPROC>(__gl_GetProcAddress("glSetFenceAPPLE"));
    glIsFenceAPPLE = reinterpret_cast<PFNGLISFENCEAPPLEPROC>(__gl_GetProcAddress("glIsFenceAPPLE"));
    glTestFenceAPPLE = reinterpret_cast<PFNGLTESTFENCEAPPLEPROC>(__gl_GetProcAddress("glTestFenceAPPLE"));
    glFinishFenceAPPLE = reinterpret_cast<PFNGLFINISHFENCEAPPLEPROC>(__gl_GetProcAddress("glFinishFenceAPPLE"));
    glTestObjectAPPLE = reinterpret_cast<PFNGLTESTOBJECTAPPLEPROC>(__gl_GetProcAddress("glTestObjectAPPLE"));
    glFinishObjectAPPLE = reinterpret_cast<PFNGLFINISHOBJECTAPPLEPROC>(__gl_GetProcAddress("glFinishObjectAPPLE"));
}

void init_GL_APPLE_float_pixels() {}

void init_GL_APPLE_flush_buffer_range() {
    glBufferParameteriAPPLE = reinterpret_cast<PFNGLBUFFERPARAMETERIAPPLEPROC>(__gl_GetProcAddress("glBufferParameteriAPPLE"));
    glFlushMappedBufferRangeAPPLE = reinterpret_cast<PFNGLFLUSHMAPPEDBUFFERRANGEAPPLEPROC>(__gl_GetProcAddress("glFlushMappedBufferRangeAPPLE"));
}

void init_GL_APPLE_object_purgeable() {
    glObjectPurgeableAPPLE = reinterpret_cast<PFNGLOBJECTPURGEABLEAPPLEPROC>(__gl_GetProcAddress("glObjectPurgeableAPPLE"));
    glObjectUnpurgeableAPPLE = reinterpret_cast<PFNGLOBJECTUNPURGEABLEAPPLEPROC>(__gl_GetProcAddress("glObjectUnpurgeableAPPLE"));
    glGetObjectParameterivAPPLE = reinterpret_cast<PFNGLGETOBJECTPARAMETERIVAPPLEPROC>(__gl_GetProcAddress("glGetObjectParameterivAPPLE"));
}

void init_GL_APPLE_rgb_422() {}

void init_GL_APPLE_row_bytes() {}

void init_GL_APPLE_specular_vector() {}

void init_GL_APPLE_texture_range() {
    glTextureRangeAPPLE = reinterpret_cast<PFNGLTEXTURERANGEAPPLEPROC>(__gl_GetProcAddress("glTextureRangeAPPLE"));
    glGetTexParameterPointervAPPLE = reinterpret_cast<PFNGLGETTEXPARAMETERPOINTERVAPPLEPROC>(__gl_GetProcAddress("glGetTexParameterPointervAPPLE"));
}

void init_GL_APPLE_transform_hint() {}

void init_GL_APPLE_vertex_array_object() {
    glBindVertexArrayAPPLE = reinterpret_cast<PFNGLBINDVERTEXARRAYAPPLEPROC>(__gl_GetProcAddress("glBindVertexArrayAPPLE"));
    glDeleteVertexArraysAPPLE = reinterpret_cast<PFNGLDELETEVERTEXARRAYSAPPLEPROC>(__gl_GetProcAddress("glDeleteVertexArraysAPPLE"));
    glGenVertexArraysAPPLE = reinterpret_cast<PFNGLGENVERTEXARRAYSAPPLEPROC>(__gl_GetProcAddress("glGenVertexArraysAPPLE"));
    glIsVertexArrayAPPLE = reinterpret_cast<PFNGLISVERTEXARRAYAPPLEPROC>(__gl_GetProcAddress("glIsVertexArrayAPPLE"));
}

void init_GL_APPLE_vertex_array_range() {
    glVertexArrayRangeAPPLE = reinterpret_cast<PFNGLVERTEXARRAYRANGEAPPLEPROC>(__gl_GetProcAddress("glVertexArrayRangeAPPLE"));
    glFlushVertexArrayRangeAPPLE = reinterpret_cast<PFNGLFLUSHVERTEXARRAYRANGEAPPLEPROC>(__gl_GetProcAddress("glFlushVertexArrayRangeAPPLE"));
    glVertexArrayParameteriAPPLE = reinterpret_cast<PFNGLVERTEXARRAYPARAMETERIAPPLEPROC>(__gl_GetProcAddress("glVertexArrayParameteriAPPLE"));
}

void init_GL_APPLE_vertex_program_evaluators() {
    glEnableVertexAttribAPPLE = reinterpret_cast<PFNGLENABLEVERTEXATTRIBAPPLEPROC>(__gl_GetProcAddress("glEnableVertexAttribAPPLE"));
    glDisableVertexAttribAPPLE = reinterpret_cast<PFNGLDISABLEVERTEXATTRIBAPPLEPROC>(__gl_GetProcAddress("glDisableVertexAttribAPPLE"));
    glIsVertexAttribEnabledAPPLE = reinterpret_cast<PFNGLISVERTEXATTRIBENABLEDAPPLEPROC>(__gl_GetProcAddress("glIsVertexAttribEnabledAPPLE"));
    glMapVertexAttrib1dAPPLE = reinterpret_cast<PFNGLMAPVERTEXATTRIB1DAPPLEPROC>(__gl_GetProcAddress("glMapVertexAttrib1dAPPLE"));
    glMapVertexAttrib1fAPPLE = reinterpret_cast<PFNGLMAPVERTEXATTRIB1FAPPLEPROC>(__gl_GetProcAddress("glMapVertexAttrib1fAPPLE"));
    glMapVertexAttrib2dAPPLE = reinterpret_cast<PFNGLMAPVERTEXATTRIB2DAPPLEPROC>(__gl_GetProcAddress("glMapVertexAttrib2dAPPLE"));
    glMapVertexAttrib2fAPPLE = reinterpret_cast<PFNGLMAPVERTEXATTRIB2FAPPLEPROC>(__gl_GetProcAddress("glMapVertexAttrib2fAPPLE"));
}

void init_GL_APPLE_ycbcr_422() {}

void init_GL_ATI_draw_buffers() {
    glDrawBuffersATI = reinterpret_cast<PFNGLDRAWBUFFERSATIPROC>(__gl_GetProcAddress("glDrawBuffersATI"));
}

void init_GL_ATI_element_array() {
    glElementPointerATI = reinterpret_cast<PFNGLELEMENTPOINTERATIPROC>(__gl_GetProcAddress("glElementPointerATI"));
    glDrawElementArrayATI = reinterpret_cast<PFNGLDRAWELEMENTARRAYATIPROC>(__gl_GetProcAddress("glDrawElementArrayATI"));
    glDrawRangeElementArrayATI = reinterpret_cast<PFNGLDRAWRANGEELEMENTARRAYATIPROC>(__gl_GetProcAddress("glDrawRangeElementArrayATI"));
}

void init_GL_ATI_envmap_bumpmap() {
    glTexBumpParameterivATI = reinterpret_cast<PFNGLTEXBUMPPARAMETERIVATIPROC>(__gl_GetProcAddress("glTexBumpParameterivATI"));
    glTexBumpParameterfvATI = reinterpret_cast<PFNGLTEXBUMPPARAMETERFVATIPROC>(__gl_GetProcAddress("glTexBumpParameterfvATI"));
    glGetTexBumpParameterivATI = reinterpret_cast<PFNGLGETTEXBUMPPARAMETERIVATIPROC>(__gl_GetProcAddress("glGetTexBumpParameterivATI"));
    glGetTexBumpParameterfvATI = reinterpret_cast<PFNGLGETTEXBUMPPARAMETERFVATIPROC>(__gl_GetProcAddress("glGetTexBumpParameterfvATI"));
}

void init_GL_ATI_fragment_shader() {
    glGenFragmentShadersATI = reinterpret_cast<PFNGLGENFRAGMENTSHADERSATIPROC>(__gl_GetProcAddress("glGenFragmentShadersATI"));
    glBindFragmentShaderATI = reinterpret_cast<PFNGLBINDFRAGMENTSHADERATIPROC>(__gl_GetProcAddress("glBindFragmentShaderATI"));
    glDeleteFragmentShaderATI = reinterpret_cast<PFNGLDELETEFRAGMENTSHADERATIPROC>(__gl_GetProcAddress("glDeleteFragmentShaderATI"));
    glBeginFragmentShaderATI = reinterpret_cast<PFNGLBEGINFRAGMENTSHADERATIPROC>(__gl_GetProcAddress("glBeginFragmentShaderATI"));
    glEndFragmentShaderATI = reinterpret_cast<PFNGLENDFRAGMENTSHADERATIPROC>(__gl_GetProcAddress("glEndFragmentShaderATI"));
    glPassTexCoordATI = reinterpret_cast<PFNGLPASSTEXCOORDATIPROC>(__gl_GetProcAddress("glPassTexCoordATI"));
    glSampleMapATI = reinterpret_cast<PFNGLSAMPLEMAPATIPROC>(__gl_GetProcAddress("glSampleMapATI"));
    glColorFragmentOp1ATI = reinterpret_cast<PFNGLCOLORFRAGMENTOP1ATIPROC>(__gl_GetProcAddress("glColorFragmentOp1ATI"));
    glColorFragmentOp2ATI = reinterpret_cast<PFNGLCOLORFRAGMENTOP2ATIPROC>(__gl_GetProcAddress("glColorFragmentOp2ATI"));
    glColorFragmentOp3ATI = reinterpret_cast<PFNGLCOLORFRAGMENTOP3ATIPROC>(__gl_GetProcAddress("glColorFragmentOp3ATI"));
    glAlphaFragmentOp1ATI = reinterpret_cast<PFNGLALPHAFRAGMENTOP1ATIPROC>(__gl_GetProcAddress("glAlphaFragmentOp1ATI"));
    glAlphaFragmentOp2ATI = reinterpret_cast<PFNGLALPHAFRAGMENTOP2ATIPROC>(__gl_GetProcAddress("glAlphaFragmentOp2ATI"));
    glAlphaFragmentOp3ATI = reinterpret_cast<PFNGLALPHAFRAGMENTOP3ATIPROC>(__gl_GetProcAddress("glAlphaFragmentOp3ATI"));
    glSetFragmentShaderConstantATI = reinterpret_cast<PFNGLSETFRAGMENTSHADERCONSTANTATIPROC>(__gl_GetProcAddress("glSetFragmentShaderConstantATI"));
}

void init_GL_ATI_map_object_buffer() {
    glMapObjectBufferATI = reinterpret_cast<PFNGLMAPOBJECTBUFFERATIPROC>(__gl_GetProcAddress("glMapObjectBufferATI"));
    glUnmapObjectBufferATI = reinterpret_cast<PFNGLUNMAPOBJECTBUFFERATIPROC>(__gl_GetProcAddress("glUnmapObjectBufferATI"));
}

void init_GL_ATI_meminfo() {}

void init_GL_ATI_pixel_format_float() {}

void init_GL_ATI_pn_triangles() {
    glPNTrianglesiATI = reinterpret_cast<PFNGLPNTRIANGLESIATIPROC>(__gl_GetProcAddress("glPNTrianglesiATI"));
    glPNTrianglesfATI = reinterpret_cast<PFNGLPNTRIANGLESFATIPROC>(__gl_GetProcAddress("glPNTrianglesfATI"));
}

void init_GL_ATI_separate_stencil() {
    glStencilOpSeparateATI = reinterpret_cast<PFNGLSTENCILOPSEPARATEATIPROC>(__gl_GetProcAddress("glStencilOpSeparateATI"));
    glStencilFuncSeparateATI = reinterpret_cast<PFNGLSTENCILFUNCSEPARATEATIPROC>(__gl_GetProcAddress("glStencilFuncSeparateATI"));
}

void init_GL_ATI_text_fragment_shader() {}

void init_GL_ATI_texture_env_combine3() {}

void init_GL_ATI_texture_float() {}

void init_GL_ATI_texture_mirror_once() {}

void init_GL_ATI_vertex_array_object() {
    glNewObjectBufferATI = reinterpret_cast<PFNGLNEWOBJECTBUFFERATIPROC>(__gl_GetProcAddress("glNewObjectBufferATI"));
    glIsObjectBufferATI = reinterpret_cast<PFNGLISOBJECTBUFFERATIPROC>(__gl_GetProcAddress("glIsObjectBufferATI"));
    glUpdateObjectBufferATI = reinterpret_cast<PFNGLUPDATEOBJECTBUFFERATIPROC>(__gl_GetProcAddress("glUpdateObjectBufferATI"));
    glGetObjectBufferfvATI = reinterpret_cast<PFNGLGETOBJECTBUFFERFVATIPROC>(__gl_GetProcAddress("glGetObjectBufferfvATI"));
    glGetObjectBufferivATI = reinterpret_cast<PFNGLGETOBJECTBUFFERIVATIPROC>(__gl_GetProcAddress("glGetObjectBufferivATI"));
    glFreeObjectBufferATI = reinterpret_cast<PFNGLFREEOBJECTBUFFERATIPROC>(__gl_GetProcAddress("glFreeObjectBufferATI"));
    glArrayObjectATI = reinterpret_cast<PFNGLARRAYOBJECTATIPROC>(__gl_GetProcAddress("glArrayObjectATI"));
    glGetArrayObjectfvATI = reinterpret_cast<PFNGLGETARRAYOBJECTFVATIPROC>(__gl_GetProcAddress("glGetArrayObjectfvATI"));
    glGetArrayObjectivATI = reinterpret_cast<PFNGLGETARRAYOBJECTIVATIPROC>(__gl_GetProcAddress("glGetArrayObjectivATI"));
    glVariantArrayObjectATI = reinterpret_cast<PFNGLVARIANTARRAYOBJECTATIPROC>(__gl_GetProcAddress("glVariantArrayObjectATI"));
    glGetVariantArrayObjectfvATI = reinterpret_cast<PFNGLGETVARIANTARRAYOBJECTFVATIPROC>(__gl_GetProcAddress("glGetVariantArrayObjectfvATI"));
    glGetVariantArrayObjectivATI = reinterpret_cast<PFNGLGETVARIANTARRAYOBJECTIVATIPROC>(__gl_GetProcAddress("glGetVariantArrayObjectivATI"));
}

void init_GL_ATI_vertex_attrib_array_object() {
    glVertexAttribArrayObjectATI = reinterpret_cast<PFNGLVERTEXATTRIBARRAYOBJECTATIPROC>(__gl_GetProcAddress("glVertexAttribArrayObjectATI"));
    glGetVertexAttribArrayObjectfvATI = reinterpret_cast<PFNGLGETVERTEXATTRIBARRAYOBJECTFVATIPROC>(__gl_GetProcAddress("glGetVertexAttribArrayObjectfvATI"));
    glGetVertexAttribArrayObjectivATI = reinterpret_cast<PFNGLGETVERTEXATTRIBARRAYOBJECTIVATIPROC>(__gl_GetProcAddress("glGetVertexAttribArrayObjectivATI"));
}

void init_GL_ATI_vertex_streams() {
    glVertexStream1sATI = reinterpret_cast<PFNGLVERTEXSTREAM1SATIPROC>(__gl_GetProcAddress("glVertexStream1sATI"));
    glVertexStream1svATI = reinterpret_cast<PFNGLVERTEXSTREAM1SVATIPROC>(__gl_GetProcAddress("glVertexStream1svATI"));
    glVertexStream1iATI = reinterpret_cast<PFNGLVERTEXSTREAM1IATIPROC>(__gl_GetProcAddress("glVertexStream1iATI"));
    glVertexStream1ivATI = reinterpret_cast<PFNGLVERTEXSTREAM1IVATIPROC>(__gl_GetProcAddress("glVertexStream1ivATI"));
    glVertexStream1fATI = reinterpret_cast<PFNGLVERTEXSTREAM1FATIPROC>(__gl_GetProcAddress("glVertexStream1fATI"));
    glVertexStream1fvATI = reinterpret_cast<PFNGLVERTEXSTREAM1FVATIPROC>(__gl_GetProcAddress("glVertexStream1fvATI"));
    glVertexStream1dATI = reinterpret_cast<PFNGLVERTEXSTREAM1DATIPROC>(__gl_GetProcAddress("glVertexStream1dATI"));
    glVertexStream1dvATI = reinterpret_cast<PFNGLVERTEXSTREAM1DVATIPROC>(__gl_GetProcAddress("glVertexStream1dvATI"));
    glVertexStream2sATI = reinterpret_cast<PFNGLVERTEXSTREAM2SATIPROC>(__gl_GetProcAddress("glVertexStream2sATI"));
    glVertexStream2svATI = reinterpret_cast<PFNGLVERTEXSTREAM2SVATIPROC>(__gl_GetProcAddress("glVertexStream2svATI"));
    glVertexStream2iATI = reinterpret_cast<PFNGLVERTEXSTREAM2IATIPROC>(__gl_GetProcAddress("glVertexStream2iATI"));
    glVertexStream2ivATI = reinterpret_cast<PFNGLVERTEXSTREAM2IVATIPROC>(__gl_GetProcAddress("glVertexStream2ivATI"));
    glVertexStream2fATI = reinterpret_cast<PFNGLVERTEXSTREAM2FATIPROC>(__gl_GetProcAddress("glVertexStream2fATI"));
    glVertexStream2fvATI = reinterpret_cast<PFNGLVERTEXSTREAM2FVATIPROC>(__gl_GetProcAddress("glVertexStream2fvATI"));
    glVertexStream2dATI = reinterpret_cast<PFNGLVERTEXSTREAM2DATIPROC>(__gl_GetProcAddress("glVertexStream2dATI"));
    glVertexStream2dvATI = reinterpret_cast<PFNGLVERTEXSTREAM2DVATIPROC>(__gl_GetProcAddress("glVertexStream2dvATI"));
    glVertexStream3sATI = reinterpret_cast<PFNGLVERTEXSTREAM3SATIPROC>(__gl_GetProcAddress("glVertexStream3sATI"));
    glVertexStream3svATI = reinterpret_cast<PFNGLVERTEXSTREAM3SVATIPROC>(__gl_GetProcAddress("glVertexStream3svATI"));
    glVertexStream3iATI = reinterpret_cast<PFNGLVERTEXSTREAM3IATIPROC>(__gl_GetProcAddress("glVertexStream3iATI"));
    glVertexStream3ivATI = reinterpret_cast<PFNGLVERTEXSTREAM3IVATIPROC>(__gl_GetProcAddress("glVertexStream3ivATI"));
    glVertexStream3fATI = reinterpret_cast<PFNGLVERTEXSTREAM3FATIPROC>(__gl_GetProcAddress("glVertexStream3fATI"));
    glVertexStream3fvATI = reinterpret_cast<PFNGLVERTEXSTREAM3FVATIPROC>(__gl_GetProcAddress("glVertexStream3fvATI"));
    glVertexStream3dATI = reinterpret_cast<PFNGLVERTEXSTREAM3DATIPROC>(__gl_GetProcAddress("glVertexStream3dATI"));
    glVertexStream3dvATI = reinterpret_cast<PFNGLVERTEXSTREAM3DVATIPROC>(__gl_GetProcAddress("glVertexStream3dvATI"));
    glVertexStream4sATI = reinterpret_cast<PFNGLVERTEXSTREAM4SATIPROC>(__gl_GetProcAddress("glVertexStream4sATI"));
    glVertexStream4svATI = reinterpret_cast<PFNGLVERTEXSTREAM4SVATIPROC>(__gl_GetProcAddress("glVertexStream4svATI"));
    glVertexStream4iATI = reinterpret_cast<PFNGLVERTEXSTREAM4IATIPROC>(__gl_GetProcAddress("glVertexStream4iATI"));
    glVertexStream4ivATI = reinterpret_cast<PFNGLVERTEXSTREAM4IVATIPROC>(__gl_GetProcAddress("glVertexStream4ivATI"));
    glVertexStream4fATI = reinterpret_cast<PFNGLVERTEXSTREAM4FATIPROC>(__gl_GetProcAddress("glVertexStream4fATI"));
    glVertexStream4fvATI = reinterpret_cast<PFNGLVERTEXSTREAM4FVATIPROC>(__gl_GetProcAddress("glVertexStream4fvATI"));
    glVertexStream4dATI = reinterpret_cast<PFNGLVERTEXSTREAM4DATIPROC>(__gl_GetProcAddress("glVertexStream4dATI"));
    glVertexStream4dvATI = reinterpret_cast<PFNGLVERTEXSTREAM4DVATIPROC>(__gl_GetProcAddress("glVertexStream4dvATI"));
    glNormalStream3bATI = reinterpret_cast<PFNGLNORMALSTREAM3BATIPROC>(__gl_GetProcAddress("glNormalStream3bATI"));
    glNormalStream3bvATI = reinterpret_cast<PFNGLNORMALSTREAM3BVATIPROC>(__gl_GetProcAddress("glNormalStream3bvATI"));
    glNormalStream3sATI = reinterpret_cast<PFNGLNORMALSTREAM3SATIPROC>(__gl_GetProcAddress("glNormalStream3sATI"));
    glNormalStream3svATI = reinterpret_cast<PFNGLNORMALSTREAM3SVATIPROC>(__gl_GetProcAddress("glNormalStream3svATI"));
    glNormalStream3iATI = reinterpret_cast<PFNGLNORMALSTREAM3IATIPROC>(__gl_GetProcAddress("glNormalStream3iATI"));
    glNormalStream3ivATI = reinterpret_cast<PFNGLNORMALSTREAM3IVATIPROC>(__gl_GetProcAddress("glNormalStream3ivATI"));
    glNormalStream3fATI = reinterpret_cast<PFNGLNORMALSTREAM3FATIPROC>(__gl_GetProcAddress("glNormalStream3fATI"));
    glNormalStream3fvATI = reinterpret_cast<PFNGLNORMALSTREAM3FVATIPROC>(__gl_GetProcAddress("glNormalStream3fvATI"));
    glNormalStream3dATI = reinterpret_cast<PFNGLNORMALSTREAM3DATIPROC>(__gl_GetProcAddress("glNormalStream3dATI"));
    glNormalStream3dvATI = reinterpret_cast<PFNGLNORMALSTREAM3DVATIPROC>(__gl_GetProcAddress("glNormalStream3dvATI"));
    glClientActiveVertexStreamATI = reinterpret_cast<PFNGLCLIENTACTIVEVERTEXSTREAMATIPROC>(__gl_GetProcAddress("glClientActiveVertexStreamATI"));
    glVertexBlendEnviATI = reinterpret_cast<PFNGLVERTEXBLENDENVIATIPROC>(__gl_GetProcAddress("glVertexBlendEnviATI"));
    glVertexBlendEnvfATI = reinterpret_cast<PFNGLVERTEXBLENDENVFATIPROC>(__gl_GetProcAddress("glVertexBlendEnvfATI"));
}

void init_GL_GREMEDY_frame_terminator() {
    glFrameTerminatorGREMEDY = reinterpret_cast<PFNGLFRAMETERMINATORGREMEDYPROC>(__gl_GetProcAddress("glFrameTerminatorGREMEDY"));
}

void init_GL_GREMEDY_string_marker() {
    glStringMarkerGREMEDY = reinterpret_cast<PFNGLSTRINGMARKERGREMEDYPROC>(__gl_GetProcAddress("glStringMarkerGREMEDY"));
}

void init_GL_HP_convolution_border_modes() {}

void init_GL_HP_image_transform() {
    glImageTransformParameteriHP = reinterpret_cast<PFNGLIMAGETRANSFORMPARAMETERIHPPROC>(__gl_GetProcAddress("glImageTransformParameteriHP"));
    glImageTransformParameterfHP = reinterpret_cast<PFNGLIMAGETRANSFORMPARAMETERFHPPROC>(__gl_GetProcAddress("glImageTransformParameterfHP"));
    glImageTransformParameterivHP = reinterpret_cast<PFNGLIMAGETRANSFORMPARAMETERIVHPPROC>(__gl_GetProcAddress("glImageTransformParameterivHP"));
    glImageTransformParameterfvHP = reinterpret_cast<PFNGLIMAGETRANSFORMPARAMETERFVHPPROC>(__gl_GetProcAddress("glImageTransformParameterfvHP"));
    glGetImageTransformParameterivHP = reinterpret_cast<PFNGLGETIMAGETRANSFORMPARAMETERIVHPPROC>(__gl_GetProcAddress("glGetImageTransformParameterivHP"));
    glGetImageTransformParameterfvHP = reinterpret_cast<PFNGLGETIMAGETRANSFORMPARAMETERFVHPPROC>(__gl_GetProcAddress("glGetImageTransformParameterfvHP"));
}

void init_GL_HP_occlusion_test() {}

void init_GL_HP_texture_lighting() {}

void init_GL_IBM_cull_vertex() {}

void init_GL_IBM_multimode_draw_arrays() {
    glMultiModeDrawArraysIBM = reinterpret_cast<PFNGLMULTIMODEDRAWARRAYSIBMPROC>(__gl_GetProcAddress("glMultiModeDrawArraysIBM"));
    glMultiModeDrawElementsIBM = reinterpret_cast<PFNGLMULTIMODEDRAWELEMENTSIBMPROC>(__gl_GetProcAddress("glMultiModeDrawElementsIBM"));
}

void init_GL_IBM_rasterpos_clip() {}

void init_GL_IBM_static_data() {
    glFlushStaticDataIBM = reinterpret_cast<PFNGLFLUSHSTATICDATAIBMPROC>(__gl_GetProcAddress("glFlushStaticDataIBM"));
}

void init_GL_IBM_texture_mirrored_repeat() {}

void init_GL_IBM_vertex_array_lists() {
    glColorPointerListIBM = reinterpret_cast<PFNGLCOLORPOINTERLISTIBMPROC>(__gl_GetProcAddress("glColorPointerListIBM"));
    glSecondaryColorPointerListIBM = reinterpret_cast<PFNGLSECONDARYCOLORPOINTERLISTIBMPROC>(__gl_GetProcAddress("glSecondaryColorPointerListIBM"));
    glEdgeFlagPointerListIBM = reinterpret_cast<PFNGLEDGEFLAGPOINTERLISTIBMPROC>(__gl_GetProcAddress("glEdgeFlagPointerListIBM"));
    glFogCoordPointerListIBM = reinterpret_cast<PFNGLFOGCOORDPOINTERLISTIBMPROC>(__gl_GetProcAddress("glFogCoordPointerListIBM"));
    glIndexPointerListIBM = reinterpret_cast<PFNGLINDEXPOINTERLISTIBMPROC>(__gl_GetProcAddress("glIndexPointerListIBM"));
    glNormalPointerListIBM = reinterpret_cast<PFNGLNORMALPOINTERLISTIBMPROC>(__gl_GetProcAddress("glNormalPointerListIBM"));
    glTexCoordPointerListIBM = reinterpret_cast<PFNGLTEXCOORDPOINTERLISTIBMPROC>(__gl_GetProcAddress("glTexCoordPointerListIBM"));
    glVertexPointerListIBM = reinterpret_cast<PFNGLVERTEXPOINTERLISTIBMPROC>(__gl_GetProcAddress("glVertexPointerListIBM"));
}

void init_GL_INGR_blend_func_separate() {
    glBlendFuncSeparateINGR = reinterpret_cast<PFNGLBLENDFUNCSEPARATEINGRPROC>(__gl_GetProcAddress("glBlendFuncSeparateINGR"));
}

void init_GL_INGR_color_clamp() {}

void init_GL_INGR_interlace_read() {}

void init_GL_INTEL_blackhole_render() {}

void init_GL_INTEL_conservative_rasterization() {}

void init_GL_INTEL_fragment_shader_ordering() {}

void init_GL_INTEL_framebuffer_CMAA() {
    glApplyFramebufferAttachmentCMAAINTEL = reinterpret_cast<PFNGLAPPLYFRAMEBUFFERATTACHMENTCMAAINTELPROC>(__gl_GetProcAddress("glApplyFramebufferAttachmentCMAAINTEL"));
}

void init_GL_INTEL_map_texture() {
    glSyncTextureINTEL = reinterpret_cast<PFNGLSYNCTEXTUREINTELPROC>(__gl_GetProcAddress("glSyncTextureINTEL"));
    glUnmapTexture2DINTEL = reinterpret_cast<PFNGLUNMAPTEXTURE2DINTELPROC>(__gl_GetProcAddress("glUnmapTexture2DINTEL"));
    glMapTexture2DINTEL = reinterpret_cast<PFNGLMAPTEXTURE2DINTELPROC>(__gl_GetProcAddress("glMapTexture2DINTEL"));
}

void init_GL_INTEL_parallel_arrays() {
    glVertexPointervINTEL = reinterpret_cast<PFNGLVERTEXPOINTERVINTELPROC>(__gl_GetProcAddress("glVertexPointervINTEL"));
    glNormalPointervINTEL = reinterpret_cast<PFNGLNORMALPOINTERVINTELPROC>(__gl_GetProcAddress("glNormalPointervINTEL"));
    glColorPointervINTEL = reinterpret_cast<PFNGLCOLORPOINTERVINTELPROC>(__gl_GetProcAddress("glColorPointervINTEL"));
    glTexCoordPointervINTEL = reinterpret_cast<PFNGLTEXCOORDPOINTERVINTELPROC>(__gl_GetProcAddress("glTexCoordPointervINTEL"));
}

void init_GL_INTEL_performance_query() {
    glBeginPerfQueryINTEL = reinterpret_cast<PFNGLBEGINPERFQUERYINTELPROC>(__gl_GetProcAddress("glBeginPerfQueryINTEL"));
    glCreatePerfQueryINTEL = reinterpret_cast<PFNGLCREATEPERFQUERYINTELPROC>(__gl_GetProcAddress("glCreatePerfQueryINTEL"));
    glDeletePerfQueryINTEL = reinterpret_cast<PFNGLDELETEPERFQUERYINTELPROC>(__gl_GetProcAddress("glDeletePerfQueryINTEL"));
    glEndPerfQueryINTEL = reinterpret_cast<PFNGLENDPERFQUERYINTELPROC>(__gl_GetProcAddress("glEndPerfQueryINTEL"));
    glGetFirstPerfQueryIdINTEL = reinterpret_cast<PFNGLGETFIRSTPERFQUERYIDINTELPROC>(__gl_GetProcAddress("glGetFirstPerfQueryIdINTEL"));
    glGetNextPerfQueryIdINTEL = reinterpret_cast<PFNGLGETNEXTPERFQUERYIDINTELPROC>(__gl_GetProcAddress("glGetNextPerfQueryIdINTEL"));
    glGetPerfCounterInfoINTEL = reinterpret_cast<PFNGLGETPERFCOUNTERINFOINTELPROC>(__gl_GetProcAddress("glGetPerfCounterInfoINTEL"));
    glGetPerfQueryDataINTEL = reinterpret_cast<PFNGLGETPERFQUERYDATAINTELPROC>(__gl_GetProcAddress("glGetPerfQueryDataINTEL"));
    glGetPerfQueryIdByNameINTEL = reinterpret_cast<PFNGLGETPERFQUERYIDBYNAMEINTELPROC>(__gl_GetProcAddress("glGetPerfQueryIdByNameINTEL"));
    glGetPerfQueryInfoINTEL = reinterpret_cast<PFNGLGETPERFQUERYINFOINTELPROC>(__gl_GetProcAddress("glGetPerfQueryInfoINTEL"));
}

void init_GL_KHR_blend_equation_advanced() {
    glBlendBarrierKHR = reinterpret_cast<PFNGLBLENDBARRIERKHRPROC>(__gl_GetProcAddress("glBlendBarrierKHR"));
}

void init_GL_KHR_blend_equation_advanced_coherent() {}

void init_GL_KHR_context_flush_control() {}

void init_GL_KHR_debug() {}

void init_GL_KHR_no_error() {}

void init_GL_KHR_parallel_shader_compile() {
    glMaxShaderCompilerThreadsKHR = reinterpret_cast<PFNGLMAXSHADERCOMPILERTHREADSKHRPROC>(__gl_GetProcAddress("glMaxShaderCompilerThreadsKHR"));
}

void init_GL_KHR_robust_buffer_access_behavior() {}

void init_GL_KHR_robustness() {}

void init_GL_KHR_shader_subgroup() {}

void init_GL_KHR_texture_compression_astc_hdr() {}

void init_GL_KHR_texture_compression_astc_ldr() {}

void init_GL_KHR_texture_compression_astc_sliced_3d() {}

void init_GL_MESAX_texture_stack() {}

void init_GL_MESA_framebuffer_flip_x() {}

void init_GL_MESA_framebuffer_flip_y() {
    glFramebufferParameteriMESA = reinterpret_cast<PFNGLFRAMEBUFFERPARAMETERIMESAPROC>(__gl_GetProcAddress("glFramebufferParameteriMESA"));
    glGetFramebufferParameterivMESA = reinterpret_cast<PFNGLGETFRAMEBUFFERPARAMETERIVMESAPROC>(__gl_GetProcAddress("glGetFramebufferParameterivMESA"));
}

void init_GL_MESA_framebuffer_swap_xy() {}

void init_GL_MESA_pack_invert() {}

void init_GL_MESA_program_binary_formats() {}

void init_GL_MESA_resize_buffers() {
    glResizeBuffersMESA = reinterpret_cast<PFNGLRESIZEBUFFERSMESAPROC>(__gl_GetProcAddress("glResizeBuffersMESA"));
}

void init_GL_MESA_shader_integer_functions() {}

void init_GL_MESA_tile_raster_order() {}

void init_GL_MESA_ycbcr_texture() {}

void init_GL_OES_byte_coordinates() {
    glMultiTexCoord1bOES = reinterpret_cast<PFNGLMULTITEXCOORD1BOESPROC>(__gl_GetProcAddress("glMultiTexCoord1bOES"));
    glMultiTexCoord1bvOES = reinterpret_cast<PFNGLMULTITEXCOORD1BVOESPROC>(__gl_GetProcAddress("glMultiTexCoord1bvOES"));
    glMultiTexCoord2bOES = reinterpret_cast<PFNGLMULTITEXCOORD2BOESPROC>(__gl_GetProcAddress("glMultiTexCoord2bOES"));
    glMultiTexCoord2bvOES = reinterpret_cast<PFNGLMULTITEXCOORD2BVOESPROC>(__gl_GetProcAddress("glMultiTexCoord2bvOES"));
    glMultiTexCoord3bOES = reinterpret_cast<PFNGLMULTITEXCOORD3BOESPROC>(__gl_GetProcAddress("glMultiTexCoord3bOES"));
    glMultiTexCoord3bvOES = reinterpret_cast<PFNGLMULTITEXCOORD3BVOESPROC>(__gl_GetProcAddress("glMultiTexCoord3bvOES"));
    glMultiTexCoord4bOES = reinterpret_cast<PFNGLMULTITEXCOORD4BOESPROC>(__gl_GetProcAddress("glMultiTexCoord4bOES"));
    glMultiTexCoord4bvOES = reinterpret_cast<PFNGLMULTITEXCOORD4BVOESPROC>(__gl_GetProcAddress("glMultiTexCoord4bvOES"));
    glTexCoord1bOES = reinterpret_cast<PFNGLTEXCOORD1BOESPROC>(__gl_GetProcAddress("glTexCoord1bOES"));
    glTexCoord1bvOES = reinterpret_cast<PFNGLTEXCOORD1BVOESPROC>(__gl_GetProcAddress("glTexCoord1bvOES"));
    glTexCoord2bOES = reinterpret_cast<PFNGLTEXCOORD2BOESPROC>(__gl_GetProcAddress("glTexCoord2bOES"));
    glTexCoord2bvOES = reinterpret_cast<PFNGLTEXCOORD2BVOESPROC>(__gl_GetProcAddress("glTexCoord2bvOES"));
    glTexCoord3bOES = reinterpret_cast<PFNGLTEXCOORD3BOESPROC>(__gl_GetProcAddress("glTexCoord3bOES"));
    glTexCoord3bvOES = reinterpret_cast<PFNGLTEXCOORD3BVOESPROC>(__gl_GetProcAddress("glTexCoord3bvOES"));
    glTexCoord4bOES = reinterpret_cast<PFNGLTEXCOORD4BOESPROC>(__gl_GetProcAddress("glTexCoord4bOES"));
    glTexCoord4bvOES = reinterpret_cast<PFNGLTEXCOORD4BVOESPROC>(__gl_GetProcAddress("glTexCoord4bvOES"));
    glVertex2bOES = reinterpret_cast<PFNGLVERTEX2BOESPROC>(__gl_GetProcAddress("glVertex2bOES"));
    glVertex2bvOES = reinterpret_cast<PFNGLVERTEX2BVOESPROC>(__gl_GetProcAddress("glVertex2bvOES"));
    glVertex3bOES = reinterpret_cast<PFNGLVERTEX3BOESPROC>(__gl_GetProcAddress("glVertex3bOES"));
    glVertex3bvOES = reinterpret_cast<PFNGLVERTEX3BVOESPROC>(__gl_GetProcAddress("glVertex3bvOES"));
    glVertex4bOES = reinterpret_cast<PFNGLVERTEX4BOESPROC>(__gl_GetProcAddress("glVertex4bOES"));
    glVertex4bvOES = reinterpret_cast<PFNGLVERTEX4BVOESPROC>(__gl_GetProcAddress("glVertex4bvOES"));
}

void init_GL_OES_compressed_paletted_texture() {}

void init_GL_OES_fixed_point() {
    glAlphaFuncxOES = reinterpret_cast<PFNGLALPHAFUNCXOESPROC>(__gl_GetProcAddress("glAlphaFuncxOES"));
    glClearColorxOES = reinterpret_cast<PFNGLCLEARCOLORXOESPROC>(__gl_GetProcAddress("glClearColorxOES"));
    glClearDepthxOES = reinterpret_cast<PFNGLCLEARDEPTHXOESPROC>(__gl_GetProcAddress("glClearDepthxOES"));
    glClipPlanexOES = reinterpret_cast<PFNGLCLIPPLANEXOESPROC>(__gl_GetProcAddress("glClipPlanexOES"));
    glColor4xOES = reinterpret_cast<PFNGLCOLOR4XOESPROC>(__gl_GetProcAddress("glColor4xOES"));
    glDepthRangexOES = reinterpret_cast<PFNGLDEPTHRANGEXOESPROC>(__gl_GetProcAddress("glDepthRangexOES"));
    glFogxOES = reinterpret_cast<PFNGLFOGXOESPROC>(__gl_GetProcAddress("glFogxOES"));
    glFogxvOES = reinterpret_cast<PFNGLFOGXVOESPROC>(__gl_GetProcAddress("glFogxvOES"));
    glFrustumxOES = reinterpret_cast<PFNGLFRUSTUMXOESPROC>(__gl_GetProcAddress("glFrustumxOES"));
    glGetClipPlanexOES = reinterpret_cast<PFNGLGETCLIPPLANEXOESPROC>(__gl_GetProcAddress("glGetClipPlanexOES"));
    glGetFixedvOES = reinterpret_cast<PFNGLGETFIXEDVOESPROC>(__gl_GetProcAddress("glGetFixedvOES"));
    glGetTexEnvxvOES = reinterpret_cast<PFNGLGETTEXENVXVOESPROC>(__gl_GetProcAddress("glGetTexEnvxvOES"));
    glGetTexParameterxvOES = reinterpret_cast<PFNGLGETTEXPARAMETERXVOESPROC>(__gl_GetProcAddress("glGetTexParameterxvOES"));
    glLightModelxOES = reinterpret_cast<PFNGLLIGHTMODELXOESPROC>(__gl_GetProcAddress("glLightModelxOES"));
    glLightModelxvOES = reinterpret_cast<PFNGLLIGHTMODELXVOESPROC>(__gl_GetProcAddress("glLightModelxvOES"));
    glLightxOES = reinterpret_cast<PFNGLLIGHTXOESPROC>(__gl_GetProcAddress("glLightxOES"));
    glLightxvOES = reinterpret_cast<PFNGLLIGHTXVOESPROC>(__gl_GetProcAddress("glLightxvOES"));
    glLineWidthxOES = reinterpret_cast<PFNGLLINEWIDTHXOESPROC>(__gl_GetProcAddress("glLineWidthxOES"));
    glLoadMatrixxOES = reinterpret_cast<PFNGLLOADMATRIXXOESPROC>(__gl_GetProcAddress("glLoadMatrixxOES"));
    glMaterialxOES = reinterpret_cast<PFNGLMATERIALXOESPROC>(__gl_GetProcAddress("glMaterialxOES"));
    glMaterialxvOES = reinterpret_cast<PFNGLMATERIALXVOESPROC>(__gl_GetProcAddress("glMaterialxvOES"));
    glMultMatrixxOES = reinterpret_cast<PFNGLMULTMATRIXXOESPROC>(__gl_GetProcAddress("glMultMatrixxOES"));
    glMultiTexCoord4xOES = reinterpret_cast<PFNGLMULTITEXCOORD4XOESPROC>(__gl_GetProcAddress("glMultiTexCoord4xOES"));
    glNormal3xOES = reinterpret_cast<PFNGLNORMAL3XOESPROC>(__gl_GetProcAddress("glNormal3xOES"));
    glOrthoxOES = reinterpret_cast<PFNGLORTHOXOESPROC>(__gl_GetProcAddress("glOrthoxOES"));
    glPointParameterxvOES = reinterpret_cast<PFNGLPOINTPARAMETERXVOESPROC>(__gl_GetProcAddress("glPointParameterxvOES"));
    glPointSizexOES = reinterpret_cast<PFNGLPOINTSIZEXOESPROC>(__gl_GetProcAddress("glPointSizexOES"));
    glPolygonOffsetxOES = reinterpret_cast<PFNGLPOLYGONOFFSETXOESPROC>(__gl_GetProcAddress("glPolygonOffsetxOES"));
    glRotatexOES = reinterpret_cast<PFNGLROTATEXOESPROC>(__gl_GetProcAddress("glRotatexOES"));
    glScalexOES = reinterpret_cast<PFNGLSCALEXOESPROC>(__gl_GetProcAddress("glScalexOES"));
    glTexEnvxOES = reinterpret_cast<PFNGLTEXENVXOESPROC>(__gl_GetProcAddress("glTexEnvxOES"));
    glTexEnvxvOES = reinterpret_cast<PFNGLTEXENVXVOESPROC>(__gl_GetProcAddress("glTexEnvxvOES"));
    glTexParameterxOES = reinterpret_cast<PFNGLTEXPARAMETERXOESPROC>(__gl_GetProcAddress("glTexParameterxOES"));
    glTexParameterxvOES = reinterpret_cast<PFNGLTEXPARAMETERXVOESPROC>(__gl_GetProcAddress("glTexParameterxvOES"));
    glTranslatexOES = reinterpret_cast<PFNGLTRANSLATEXOESPROC>(__gl_GetProcAddress("glTranslatexOES"));
    glAccumxOES = reinterpret_cast<PFNGLACCUMXOESPROC>(__gl_GetProcAddress("glAccumxOES"));
    glBitmapxOES = reinterpret_cast<PFNGLBITMAPXOESPROC>(__gl_GetProcAddress("glBitmapxOES"));
    glBlendColorxOES = reinterpret_cast<PFNGLBLENDCOLORXOESPROC>(__gl_GetProcAddress("glBlendColorxOES"));
    glClearAccumxOES = reinterpret_cast<PFNGLCLEARACCUMXOESPROC>(__gl_GetProcAddress("glClearAccumxOES"));
    glColor3xOES = reinterpret_cast<PFNGLCOLOR3XOESPROC>(__gl_GetProcAddress("glColor3xOES"));
    glColor3xvOES = reinterpret_cast<PFNGLCOLOR3XVOESPROC>(__gl_GetProcAddress("glColor3xvOES"));
    glColor4xvOES = reinterpret_cast<PFNGLCOLOR4XVOESPROC>(__gl_GetProcAddress("glColor4xvOES"));
    glConvolutionParameterxOES = reinterpret_cast<PFNGLCONVOLUTIONPARAMETERXOESPROC>(__gl_GetProcAddress("glConvolutionParameterxOES"));
    glConvolutionParameterxvOES = reinterpret_cast<PFNGLCONVOLUTIONPARAMETERXVOESPROC>(__gl_GetProcAddress("glConvolutionParameterxvOES"));
    glEvalCoord1xOES = reinterpret_cast<PFNGLEVALCOORD1XOESPROC>(__gl_GetProcAddress("glEvalCoord1xOES"));
    glEvalCoord1xvOES = reinterpret_cast<PFNGLEVALCOORD1XVOESPROC>(__gl_GetProcAddress("glEvalCoord1xvOES"));
    glEvalCoord2xOES = reinterpret_cast<PFNGLEVALCOORD2XOESPROC>(__gl_GetProcAddress("glEvalCoord2xOES"));
    glEvalCoord2xvOES = reinterpret_cast<PFNGLEVALCOORD2XVOESPROC>(__gl_GetProcAddress("glEvalCoord2xvOES"));
    glFeedbackBufferxOES = reinterpret_cast<PFNGLFEEDBACKBUFFERXOESPROC>(__gl_GetProcAddress("glFeedbackBufferxOES"));
    glGetConvolutionParameterxvOES = reinterpret_cast<PFNGLGETCONVOLUTIONPARAMETERXVOESPROC>(__gl_GetProcAddress("glGetConvolutionParameterxvOES"));
    glGetHistogramParameterxvOES = reinterpret_cast<PFNGLGETHISTOGRAMPARAMETERXVOESPROC>(__gl_GetProcAddress("glGetHistogramParameterxvOES"));
    glGetLightxOES = reinterpret_cast<PFNGLGETLIGHTXOESPROC>(__gl_GetProcAddress("glGetLightxOES"));
    glGetMapxvOES = reinterpret_cast<PFNGLGETMAPXVOESPROC>(__gl_GetProcAddress("glGetMapxvOES"));
    glGetMaterialxOES = reinterpret_cast<PFNGLGETMATERIALXOESPROC>(__gl_GetProcAddress("glGetMaterialxOES"));
    glGetPixelMapxv = reinterpret_cast<PFNGLGETPIXELMAPXVPROC>(__gl_GetProcAddress("glGetPixelMapxv"));
    glGetTexGenxvOES = reinterpret_cast<PFNGLGETTEXGENXVOESPROC>(__gl_GetProcAddress("glGetTexGenxvOES"));
    glGetTexLevelParameterxvOES = reinterpret_cast<PFNGLGETTEXLEVELPARAMETERXVOESPROC>(__gl_GetProcAddress("glGetTexLevelParameterxvOES"));
    glIndexxOES = reinterpret_cast<PFNGLINDEXXOESPROC>(__gl_GetProcAddress("glIndexxOES"));
    glIndexxvOES = reinterpret_cast<PFNGLINDEXXVOESPROC>(__gl_GetProcAddress("glIndexxvOES"));
    glLoadTransposeMatrixxOES = reinterpret_cast<PFNGLLOADTRANSPOSEMATRIXXOESPROC>(__gl_GetProcAddress("glLoadTransposeMatrixxOES"));
    glMap1xOES = reinterpret_cast<PFNGLMAP1XOESPROC>(__gl_GetProcAddress("glMap1xOES"));
    glMap2xOES = reinterpret_cast<PFNGLMAP2XOESPROC>(__gl_GetProcAddress("glMap2xOES"));
    glMapGrid1xOES = reinterpret_cast<PFNGLMAPGRID1XOESPROC>(__gl_GetProcAddress("glMapGrid1xOES"));
    glMapGrid2xOES = reinterpret_cast<PFNGLMAPGRID2XOESPROC>(__gl_GetProcAddress("glMapGrid2xOES"));
    glMultTransposeMatrixxOES = reinterpret_cast<PFNGLMULTTRANSPOSEMATRIXXOESPROC>(__gl_GetProcAddress("glMultTransposeMatrixxOES"));
    glMultiTexCoord1xOES = reinterpret_cast<PFNGLMULTITEXCOORD1XOESPROC>(__gl_GetProcAddress("glMultiTexCoord1xOES"));
    glMultiTexCoord1xvOES = reinterpret_cast<PFNGLMULTITEXCOORD1XVOESPROC>(__gl_GetProcAddress("glMultiTexCoord1xvOES"));
    glMultiTexCoord2xOES = reinterpret_cast<PFNGLMULTITEXCOORD2XOESPROC>(__gl_GetProcAddress("glMultiTexCoord2xOES"));
    glMultiTexCoord2xvOES = reinterpret_cast<PFNGLMULTITEXCOORD2XVOESPROC>(__gl_GetProcAddress("glMultiTexCoord2xvOES"));
    glMultiTexCoord3xOES = reinterpret_cast<PFNGLMULTITEXCOORD3XOESPROC>(__gl_GetProcAddress("glMultiTexCoord3xOES"));
    glMultiTexCoord3xvOES = reinterpret_cast<PFNGLMULTITEXCOORD3XVOESPROC>(__gl_GetProcAddress("glMultiTexCoord3xvOES"));
    glMultiTexCoord4xvOES = reinterpret_cast<PFNGLMULTITEXCOORD4XVOESPROC>(__gl_GetProcAddress("glMultiTexCoord4xvOES"));
    glNormal3xvOES = reinterpret_cast<PFNGLNORMAL3XVOESPROC>(__gl_GetProcAddress("glNormal3xvOES"));
    glPassThroughxOES = reinterpret_cast<PFNGLPASSTHROUGHXOESPROC>(__gl_GetProcAddress("glPassThroughxOES"));
    glPixelMapx = reinterpret_cast<PFNGLPIXELMAPXPROC>(__gl_GetProcAddress("glPixelMapx"));
    glPixelStorex = reinterpret_cast<PFNGLPIXELSTOREXPROC>(__gl_GetProcAddress("glPixelStorex"));
    glPixelTransferxOES = reinterpret_cast<PFNGLPIXELTRANSFERXOESPROC>(__gl_GetProcAddress("glPixelTransferxOES"));
    glPixelZoomxOES = reinterpret_cast<PFNGLPIXELZOOMXOESPROC>(__gl_GetProcAddress("glPixelZoomxOES"));
    glPrioritizeTexturesxOES = reinterpret_cast<PFNGLPRIORITIZETEXTURESXOESPROC>(__gl_GetProcAddress("glPrioritizeTexturesxOES"));
    glRasterPos2xOES = reinterpret_cast<PFNGLRASTERPOS2XOESPROC>(__gl_GetProcAddress("glRasterPos2xOES"));
    glRasterPos2xvOES = reinterpret_cast<PFNGLRASTERPOS2XVOESPROC>(__gl_GetProcAddress("glRasterPos2xvOES"));
    glRasterPos3xOES = reinterpret_cast<PFNGLRASTERPOS3XOESPROC>(__gl_GetProcAddress("glRasterPos3xOES"));
    glRasterPos3xvOES = reinterpret_cast<PFNGLRASTERPOS3XVOESPROC>(__gl_GetProcAddress("glRasterPos3xvOES"));
    glRasterPos4xOES = reinterpret_cast<PFNGLRASTERPOS4XOESPROC>(__gl_GetProcAddress("glRasterPos4xOES"));
    glRasterPos4xvOES = reinterpret_cast<PFNGLRASTERPOS4XVOESPROC>(__gl_GetProcAddress("glRasterPos4xvOES"));
    glRectxOES = reinterpret_cast<PFNGLRECTXOESPROC>(__gl_GetProcAddress("glRectxOES"));
    glRectxvOES = reinterpret_cast<PFNGLRECTXVOESPROC>(__gl_GetProcAddress("glRectxvOES"));
    glTexCoord1xOES = reinterpret_cast<PFNGLTEXCOORD1XOESPROC>(__gl_GetProcAddress("glTexCoord1xOES"));
    glTexCoord1xvOES = reinterpret_cast<PFNGLTEXCOORD1XVOESPROC>(__gl_GetProcAddress("glTexCoord1xvOES"));
    glTexCoord2xOES = reinterpret_cast<PFNGLTEXCOORD2XOESPROC>(__gl_GetProcAddress("glTexCoord2xOES"));
    glTexCoord2xvOES = reinterpret_cast<PFNGLTEXCOORD2XVOESPROC>(__gl_GetProcAddress("glTexCoord2xvOES"));
    glTexCoord3xOES = reinterpret_cast<PFNGLTEXCOORD3XOESPROC>(__gl_GetProcAddress("glTexCoord3xOES"));
    glTexCoord3xvOES = reinterpret_cast<PFNGLTEXCOORD3XVOESPROC>(__gl_GetProcAddress("glTexCoord3xvOES"));
    glTexCoord4xOES = reinterpret_cast<PFNGLTEXCOORD4XOESPROC>(__gl_GetProcAddress("glTexCoord4xOES"));
    glTexCoord4xvOES = reinterpret_cast<PFNGLTEXCOORD4XVOESPROC>(__gl_GetProcAddress("glTexCoord4xvOES"));
    glTexGenxOES = reinterpret_cast<PFNGLTEXGENXOESPROC>(__gl_GetProcAddress("glTexGenxOES"));
    glTexGenxvOES = reinterpret_cast<PFNGLTEXGENXVOESPROC>(__gl_GetProcAddress("glTexGenxvOES"));
    glVertex2xOES = reinterpret_cast<PFNGLVERTEX2XOESPROC>(__gl_GetProcAddress("glVertex2xOES"));
    glVertex2xvOES = reinterpret_cast<PFNGLVERTEX2XVOESPROC>(__gl_GetProcAddress("glVertex2xvOES"));
    glVertex3xOES = reinterpret_cast<PFNGLVERTEX3XOESPROC>(__gl_GetProcAddress("glVertex3xOES"));
    glVertex3xvOES = reinterpret_cast<PFNGLVERTEX3XVOESPROC>(__gl_GetProcAddress("glVertex3xvOES"));
    glVertex4xOES = reinterpret_cast<PFNGLVERTEX4XOESPROC>(__gl_GetProcAddress("glVertex4xOES"));
    glVertex4xvOES = reinterpret_cast<PFNGLVERTEX4XVOESPROC>(__gl_GetProcAddress("glVertex4xvOES"));
}

void init_GL_OES_query_matrix() {
    glQueryMatrixxOES = reinterpret_cast<PFNGLQUERYMATRIXXOESPROC>(__gl_GetProcAddress("glQueryMatrixxOES"));
}

void init_GL_OES_read_format() {}

void init_GL_OES_single_precision() {
    glClearDepthfOES = reinterpret_cast<PFNGLCLEARDEPTHFOESPROC>(__gl_GetProcAddress("glClearDepthfOES"));
    glClipPlanefOES = reinterpret_cast<PFNGLCLIPPLANEFOESPROC>(__gl_GetProcAddress("glClipPlanefOES"));
    glDepthRangefOES = reinterpret_cast<PFNGLDEPTHRANGEFOESPROC>(__gl_GetProcAddress("glDepthRangefOES"));
    glFrustumfOES = reinterpret_cast<PFNGLFRUSTUMFOESPROC>(__gl_GetProcAddress("glFrustumfOES"));
    glGetClipPlanefOES = reinterpret_cast<PFNGLGETCLIPPLANEFOESPROC>(__gl_GetProcAddress("glGetClipPlanefOES"));
    glOrthofOES = reinterpret_cast<PFNGLORTHOFOESPROC>(__gl_GetProcAddress("glOrthofOES"));
}

void init_GL_OML_interlace() {}

void init_GL_OML_resample() {}

void init_GL_OML_subsample() {}

void init_GL_OVR_multiview() {
    glFramebufferTextureMultiviewOVR = reinterpret_cast<PFNGLFRAMEBUFFERTEXTUREMULTIVIEWOVRPROC>(__gl_GetProcAddress("glFramebufferTextureMultiviewOVR"));
}

void init_GL_OVR_multiview2() {}

void init_GL_PGI_misc_hints() {
    glHintPGI = reinterpret_cast<PFNGLHINTPGIPROC>(__gl_GetProcAddress("glHintPGI"));
}

void init_GL_PGI_vertex_hints() {}

void init_GL_REND_screen_coordinates() {}

void init_GL_S3_s3tc() {}

void init_GL_SGIS_detail_texture() {
    glDetailTexFuncSGIS = reinterpret_cast<PFNGLDETAILTEXFUNCSGISPROC>(__gl_GetProcAddress("glDetailTexFuncSGIS"));
    glGetDetailTexFuncSGIS = reinterpret_cast<PFNGLGETDETAILTEXFUNCSGISPROC>(__gl_GetProcAddress("glGetDetailTexFuncSGIS"));
}

void init_GL_SGIS_fog_function() {
    glFogFuncSGIS = reinterpret_cast<PFNGLFOGFUNCSGISPROC>(__gl_GetProcAddress("glFogFuncSGIS"));
    glGetFogFuncSGIS = reinterpret_cast<PFNGLGETFOGFUNCSGISPROC>(__gl_GetProcAddress("glGetFogFuncSGIS"));
}

void init_GL_SGIS_generate_mipmap() {}

void init_GL_SGIS_multisample() {
    glSampleMaskSGIS = reinterpret_cast<PFNGLSAMPLEMASKSGISPROC>(__gl_GetProcAddress("glSampleMaskSGIS"));
    glSamplePatternSGIS = reinterpret_cast<PFNGLSAMPLEPATTERNSGISPROC>(__gl_GetProcAddress("glSamplePatternSGIS"));
}

void init_GL_SGIS_pixel_texture() {
    glPixelTexGenParameteriSGIS = reinterpret_cast<PFNGLPIXELTEXGENPARAMETERISGISPROC>(__gl_GetProcAddress("glPixelTexGenParameteriSGIS"));
    glPixelTexGenParameterivSGIS = reinterpret_cast<PFNGLPIXELTEXGENPARAMETERIVSGISPROC>(__gl_GetProcAddress("glPixelTexGenParameterivSGIS"));
    glPixelTexGenParameterfSGIS = reinterpret_cast<PFNGLPIXELTEXGENPARAMETERFSGISPROC>(__gl_GetProcAddress("glPixelTexGenParameterfSGIS"));
    glPixelTexGenParameterfvSGIS = reinterpret_cast<PFNGLPIXELTEXGENPARAMETERFVSGISPROC>(__gl_GetProcAddress("glPixelTexGenParameterfvSGIS"));
    glGetPixelTexGenParameterivSGIS = reinterpret_cast<PFNGLGETPIXELTEXGENPARAMETERIVSGISPROC>(__gl_GetProcAddress("glGetPixelTexGenParameterivSGIS"));
    glGetPixelTexGenParameterfvSGIS = reinterpret_cast<PFNGLGETPIXELTEXGENPARAMETERFVSGISPROC>(__gl_GetProcAddress("glGetPixelTexGenParameterfvSGIS"));
}

void init_GL_SGIS_point_line_texgen() {}

void init_GL_SGIS_point_parameters() {
    glPointParameterfSGIS = reinterpret_cast<PFNGLPOINTPARAMETERFSGISPROC>(__gl_GetProcAddress("glPointParameterfSGIS"));
    glPointParameterfvSGIS = reinterpret_cast<PFNGLPOINTPARAMETERFVSGISPROC>(__gl_GetProcAddress("glPointParameterfvSGIS"));
}

void init_GL_SGIS_sharpen_texture() {
    glSharpenTexFuncSGIS = reinterpret_cast<PFNGLSHARPENTEXFUNCSGISPROC>(__gl_GetProcAddress("glSharpenTexFuncSGIS"));
    glGetSharpenTexFuncSGIS = reinterpret_cast<PFNGLGETSHARPENTEXFUNCSGISPROC>(__gl_GetProcAddress("glGetSharpenTexFuncSGIS"));
}

void init_GL_SGIS_texture4D() {
    glTexImage4DSGIS = reinterpret_cast<PFNGLTEXIMAGE4DSGISPROC>(__gl_GetProcAddress("glTexImage4DSGIS"));
    glTexSubImage4DSGIS = reinterpret_cast<PFNGLTEXSUBIMAGE4DSGISPROC>(__gl_GetProcAddress("glTexSubImage4DSGIS"));
}

void init_GL_SGIS_texture_border_clamp() {}

void init_GL_SGIS_texture_color_mask() {
    glTextureColorMaskSGIS = reinterpret_cast<PFNGLTEXTURECOLORMASKSGISPROC>(__gl_GetProcAddress("glTextureColorMaskSGIS"));
}

void init_GL_SGIS_texture_edge_clamp() {}

void init_GL_SGIS_texture_filter4() {
    glGetTexFilterFuncSGIS = reinterpret_cast<PFNGLGETTEXFILTERFUNCSGISPROC>(__gl_GetProcAddress("glGetTexFilterFuncSGIS"));
    glTexFilterFuncSGIS = reinterpret_cast<PFNGLTEXFILTERFUNCSGISPROC>(__gl_GetProcAddress("glTexFilterFuncSGIS"));
}

void init_GL_SGIS_texture_lod() {}

void init_GL_SGIS_texture_select() {}

void init_GL_SGIX_async() {
    glAsyncMarkerSGIX = reinterpret_cast<PFNGLASYNCMARKERSGIXPROC>(__gl_GetProcAddress("glAsyncMarkerSGIX"));
    glFinishAsyncSGIX = reinterpret_cast<PFNGLFINISHASYNCSGIXPROC>(__gl_GetProcAddress("glFinishAsyncSGIX"));
    glPollAsyncSGIX = reinterpret_cast<PFNGLPOLLASYNCSGIXPROC>(__gl_GetProcAddress("glPollAsyncSGIX"));
    glGenAsyncMarkersSGIX = reinterpret_cast<PFNGLGENASYNCMARKERSSGIXPROC>(__gl_GetProcAddress("glGenAsyncMarkersSGIX"));
    glDeleteAsyncMarkersSGIX = reinterpret_cast<PFNGLDELETEASYNCMARKERSSGIXPROC>(__gl_GetProcAddress("glDeleteAsyncMarkersSGIX"));
    glIsAsyncMarkerSGIX = reinterpret_cast<PFNGLISASYNCMARKERSGIXPROC>(__gl_GetProcAddress("glIsAsyncMarkerSGIX"));
}

void init_GL_SGIX_async_histogram() {}

void init_GL_SGIX_async_pixel() {}

void init_GL_SGIX_blend_alpha_minmax() {}

void init_GL_SGIX_calligraphic_fragment() {}

void init_GL_SGIX_clipmap() {}

void init_GL_SGIX_convolution_accuracy() {}

void init_GL_SGIX_depth_pass_instrument() {}

void init_GL_SGIX_depth_texture() {}

void init_GL_SGIX_flush_raster() {
    glFlushRasterSGIX = reinterpret_cast<PFNGLFLUSHRASTERSGIXPROC>(__gl_GetProcAddress("glFlushRasterSGIX"));
}

void init_GL_SGIX_fog_offset() {}

void init_GL_SGIX_fragment_lighting() {
    glFragmentColorMaterialSGIX = reinterpret_cast<PFNGLFRAGMENTCOLORMATERIALSGIXPROC>(__gl_GetProcAddress("glFragmentColorMaterialSGIX"));
    glFragmentLightfSGIX = reinterpret_cast<PFNGLFRAGMENTLIGHTFSGIXPROC>(__gl_GetProcAddress("glFragmentLightfSGIX"));
    glFragmentLightfvSGIX = reinterpret_cast<PFNGLFRAGMENTLIGHTFVSGIXPROC>(__gl_GetProcAddress("glFragmentLightfvSGIX"));
    glFragmentLightiSGIX = reinterpret_cast<PFNGLFRAGMENTLIGHTISGIXPROC>(__gl_GetProcAddress("glFragmentLightiSGIX"));
    glFragmentLightivSGIX = reinterpret_cast<PFNGLFRAGMENTLIGHTIVSGIXPROC>(__gl_GetProcAddress("glFragmentLightivSGIX"));
    glFragmentLightModelfSGIX = reinterpret_cast<PFNGLFRAGMENTLIGHTMODELFSGIXPROC>(__gl_GetProcAddress("glFragmentLightModelfSGIX"));
    glFragmentLightModelfvSGIX = reinterpret_cast<PFNGLFRAGMENTLIGHTMODELFVSGIXPROC>(__gl_GetProcAddress("glFragmentLightModelfvSGIX"));
    glFragmentLightModeliSGIX = reinterpret_cast<PFNGLFRAGMENTLIGHTMODELISGIXPROC>(__gl_GetProcAddress("glFragmentLightModeliSGIX"));
    glFragmentLightModelivSGIX = reinterpret_cast<PFNGLFRAGMENTLIGHTMODELIVSGIXPROC>(__gl_GetProcAddress("glFragmentLightModelivSGIX"));
    glFragmentMaterialfSGIX = reinterpret_cast<PFNGLFRAGMENTMATERIALFSGIXPROC>(__gl_GetProcAddress("glFragmentMaterialfSGIX"));
    glFragmentMaterialfvSGIX = reinterpret_cast<PFNGLFRAGMENTMATERIALFVSGIXPROC>(__gl_GetProcAddress("glFragmentMaterialfvSGIX"));
    glFragmentMaterialiSGIX = reinterpret_cast<PFNGLFRAGMENTMATERIALISGIXPROC>(__gl_GetProcAddress("glFragmentMaterialiSGIX"));
    glFragmentMaterialivSGIX = reinterpret_cast<PFNGLFRAGMENTMATERIALIVSGIXPROC>(__gl_GetProcAddress("glFragmentMaterialivSGIX"));
    glGetFragmentLightfvSGIX = reinterpret_cast<PFNGLGETFRAGMENTLIGHTFVSGIXPROC>(__gl_GetProcAddress("glGetFragmentLightfvSGIX"));
    glGetFragmentLightivSGIX = reinterpret_cast<PFNGLGETFRAGMENTLIGHTIVSGIXPROC>(__gl_GetProcAddress("glGetFragmentLightivSGIX"));
    glGetFragmentMaterialfvSGIX = reinterpret_cast<PFNGLGETFRAGMENTMATERIALFVSGIXPROC>(__gl_GetProcAddress("glGetFragmentMaterialfvSGIX"));
    glGetFragmentMaterialivSGIX = reinterpret_cast<PFNGLGETFRAGMENTMATERIALIVSGIXPROC>(__gl_GetProcAddress("glGetFragmentMaterialivSGIX"));
    glLightEnviSGIX = reinterpret_cast<PFNGLLIGHTENVISGIXPROC>(__gl_GetProcAddress("glLightEnviSGIX"));
}

void init_GL_SGIX_framezoom() {
    glFrameZoomSGIX = reinterpret_cast<PFNGLFRAMEZOOMSGIXPROC>(__gl_GetProcAddress("glFrameZoomSGIX"));
}

void init_GL_SGIX_igloo_interface() {
    glIglooInterfaceSGIX = reinterpret_cast<PFNGLIGLOOINTERFACESGIXPROC>(__gl_GetProcAddress("glIglooInterfaceSGIX"));
}

void init_GL_SGIX_instruments() {
    glGetInstrumentsSGIX = reinterpret_cast<PFNGLGETINSTRUMENTSSGIXPROC>(__gl_GetProcAddress("glGetInstrumentsSGIX"));
    glInstrumentsBufferSGIX = reinterpret_cast<PFNGLINSTRUMENTSBUFFERSGIXPROC>(__gl_GetProcAddress("glInstrumentsBufferSGIX"));
    glPollInstrumentsSGIX = reinterpret_cast<PFNGLPOLLINSTRUMENTSSGIXPROC>(__gl_GetProcAddress("glPollInstrumentsSGIX"));
    glReadInstrumentsSGIX = reinterpret_cast<PFNGLREADINSTRUMENTSSGIXPROC>(__gl_GetProcAddress("glReadInstrumentsSGIX"));
    glStartInstrumentsSGIX = reinterpret_cast<PFNGLSTARTINSTRUMENTSSGIXPROC>(__gl_GetProcAddress("glStartInstrumentsSGIX"));
    glStopInstrumentsSGIX = reinterpret_cast<PFNGLSTOPINSTRUMENTSSGIXPROC>(__gl_GetProcAddress("glStopInstrumentsSGIX"));
}

void init_GL_SGIX_interlace() {}

void init_GL_SGIX_ir_instrument1() {}

void init_GL_SGIX_list_priority() {
    glGetListParameterfvSGIX = reinterpret_cast<PFNGLGETLISTPARAMETERFVSGIXPROC>(__gl_GetProcAddress("glGetListParameterfvSGIX"));
    glGetListParameterivSGIX = reinterpret_cast<PFNGLGETLISTPARAMETERIVSGIXPROC>(__gl_GetProcAddress("glGetListParameterivSGIX"));
    glListParameterfSGIX = reinterpret_cast<PFNGLLISTPARAMETERFSGIXPROC>(__gl_GetProcAddress("glListParameterfSGIX"));
    glListParameterfvSGIX = reinterpret_cast<PFNGLLISTPARAMETERFVSGIXPROC>(__gl_GetProcAddress("glListParameterfvSGIX"));
    glListParameteriSGIX = reinterpret_cast<PFNGLLISTPARAMETERISGIXPROC>(__gl_GetProcAddress("glListParameteriSGIX"));
    glListParameterivSGIX = reinterpret_cast<PFNGLLISTPARAMETERIVSGIXPROC>(__gl_GetProcAddress("glListParameterivSGIX"));
}

void init_GL_SGIX_pixel_texture() {
    glPixelTexGenSGIX = reinterpret_cast<PFNGLPIXELTEXGENSGIXPROC>(__gl_GetProcAddress("glPixelTexGenSGIX"));
}

void init_GL_SGIX_pixel_tiles() {}

void init_GL_SGIX_polynomial_ffd() {
    glDeformationMap3dSGIX = reinterpret_cast<PFNGLDEFORMATIONMAP3DSGIXPROC>(__gl_GetProcAddress("glDeformationMap3dSGIX"));
    glDeformationMap3fSGIX = reinterpret_cast<PFNGLDEFORMATIONMAP3FSGIXPROC>(__gl_GetProcAddress("glDeformationMap3fSGIX"));
    glDeformSGIX = reinterpret_cast<PFNGLDEFORMSGIXPROC>(__gl_GetProcAddress("glDeformSGIX"));
    glLoadIdentityDeformationMapSGIX = reinterpret_cast<PFNGLLOADIDENTITYDEFORMATIONMAPSGIXPROC>(__gl_GetProcAddress("glLoadIdentityDeformationMapSGIX"));
}

void init_GL_SGIX_reference_plane() {
    glReferencePlaneSGIX = reinterpret_cast<PFNGLREFERENCEPLANESGIXPROC>(__gl_GetProcAddress("glReferencePlaneSGIX"));
}

void init_GL_SGIX_resample() {}

void init_GL_SGIX_scalebias_hint() {}

void init_GL_SGIX_shadow() {}

void init_GL_SGIX_shadow_ambient() {}

void init_GL_SGIX_sprite() {
    glSpriteParameterfSGIX = reinterpret_cast<PFNGLSPRITEPARAMETERFSGIXPROC>(__gl_GetProcAddress("glSpriteParameterfSGIX"));
    glSpriteParameterfvSGIX = reinterpret_cast<PFNGLSPRITEPARAMETERFVSGIXPROC>(__gl_GetProcAddress("glSpriteParameterfvSGIX"));
    glSpriteParameteriSGIX = reinterpret_cast<PFNGLSPRITEPARAMETERISGIXPROC>(__gl_GetProcAddress("glSpriteParameteriSGIX"));
    glSpriteParameterivSGIX = reinterpret_cast<PFNGLSPRITEPARAMETERIVSGIXPROC>(__gl_GetProcAddress("glSpriteParameterivSGIX"));
}

void init_GL_SGIX_subsample() {}

void init_GL_SGIX_tag_sample_buffer() {
    glTagSampleBufferSGIX = reinterpret_cast<PFNGLTAGSAMPLEBUFFERSGIXPROC>(__gl_GetProcAddress("glTagSampleBufferSGIX"));
}

void init_GL_SGIX_texture_add_env() {}

void init_GL_SGIX_texture_coordinate_clamp() {}

void init_GL_SGIX_texture_lod_bias() {}

void init_GL_SGIX_texture_multi_buffer() {}

void init_GL_SGIX_texture_scale_bias() {}

void init_GL_SGIX_vertex_preclip() {}

void init_GL_SGIX_ycrcb() {}

void init_GL_SGIX_ycrcb_subsample() {}

void init_GL_SGIX_ycrcba() {}

void init_GL_SGI_color_matrix() {}

void init_GL_SGI_color_table() {
    glColorTableSGI = reinterpret_cast<PFNGLCOLORTABLESGIPROC>(__gl_GetProcAddress("glColorTableSGI"));
    glColorTableParameterfvSGI = reinterpret_cast<PFNGLCOLORTABLEPARAMETERFVSGIPROC>(__gl_GetProcAddress("glColorTableParameterfvSGI"));
    glColorTableParameterivSGI = reinterpret_cast<PFNGLCOLORTABLEPARAMETERIVSGIPROC>(__gl_GetProcAddress("glColorTableParameterivSGI"));
    glCopyColorTableSGI = reinterpret_cast<PFNGLCOPYCOLORTABLESGIPROC>(__gl_GetProcAddress("glCopyColorTableSGI"));
    glGetColorTableSGI = reinterpret_cast<PFNGLGETCOLORTABLESGIPROC>(__gl_GetProcAddress("glGetColorTableSGI"));
    glGetColorTableParameterfvSGI = reinterpret_cast<PFNGLGETCOLORTABLEPARAMETERFVSGIPROC>(__gl_GetProcAddress("glGetColorTableParameterfvSGI"));
    glGetColorTableParameterivSGI = reinterpret_cast<PFNGLGETCOLORTABLEPARAMETERIVSGIPROC>(__gl_GetProcAddress("glGetColorTableParameterivSGI"));
}

void init_GL_SGI_texture_color_table() {}

void init_GL_SUNX_constant_data() {
    glFinishTextureSUNX = reinterpret_cast<PFNGLFINISHTEXTURESUNXPROC>(__gl_GetProcAddress("glFinishTextureSUNX"));
}

void init_GL_SUN_convolution_border_modes() {}

void init_GL_SUN_global_alpha() {
    glGlobalAlphaFactorbSUN = reinterpret_cast<PFNGLGLOBALALPHAFACTORBSUNPROC>(__gl_GetProcAddress("glGlobalAlphaFactorbSUN"));
    glGlobalAlphaFactorsSUN = reinterpret_cast<PFNGLGLOBALALPHAFACTORSSUNPROC>(__gl_GetProcAddress("glGlobalAlphaFactorsSUN"));
    glGlobalAlphaFactoriSUN = reinterpret_cast<PFNGLGLOBALALPHAFACTORISUNPROC>(__gl_GetProcAddress("glGlobalAlphaFactoriSUN"));
    glGlobalAlphaFactorfSUN = reinterpret_cast<PFNGLGLOBALALPHAFACTORFSUNPROC>(__gl_GetProcAddress("glGlobalAlphaFactorfSUN"));
    glGlobalAlphaFactordSUN = reinterpret_cast<PFNGLGLOBALALPHAFACTORDSUNPROC>(__gl_GetProcAddress("glGlobalAlphaFactordSUN"));
    glGlobalAlphaFactorubSUN = reinterpret_cast<PFNGLGLOBALALPHAFACTORUBSUNPROC>(__gl_GetProcAddress("glGlobalAlphaFactorubSUN"));
    glGlobalAlphaFactorusSUN = reinterpret_cast<PFNGLGLOBALALPHAFACTORUSSUNPROC>(__gl_GetProcAddress("glGlobalAlphaFactorusSUN"));
    glGlobalAlphaFactoruiSUN = reinterpret_cast<PFNGLGLOBALALPHAFACTORUISUNPROC>(__gl_GetProcAddress("glGlobalAlphaFactoruiSUN"));
}

void init_GL_SUN_mesh_array() {
    glDrawMeshArraysSUN = reinterpret_cast<PFNGLDRAWMESHARRAYSSUNPROC>(__gl_GetProcAddress("glDrawMeshArraysSUN"));
}

void init_GL_SUN_slice_accum() {}

void init_GL_SUN_triangle_list() {
    glReplacementCodeuiSUN = reinterpret_cast<PFNGLREPLACEMENTCODEUISUNPROC>(__gl_GetProcAddress("glReplacementCodeuiSUN"));
    glReplacementCodeusSUN = reinterpret_cast<PFNGLREPLACEMENTCODEUSSUNPROC>(__gl_GetProcAddress("glReplacementCodeusSUN"));
    glReplacementCodeubSUN = reinterpret_cast<PFNGLREPLACEMENTCODEUBSUNPROC>(__gl_GetProcAddress("glReplacementCodeubSUN"));
    glReplacementCodeuivSUN = reinterpret_cast<PFNGLREPLACEMENTCODEUIVSUNPROC>(__gl_GetProcAddress("glReplacementCodeuivSUN"));
    glReplacementCodeusvSUN = reinterpret_cast<PFNGLREPLACEMENTCODEUSVSUNPROC>(__gl_GetProcAddress("glReplacementCodeusvSUN"));
    glReplacementCodeubvSUN = reinterpret_cast<PFNGLREPLACEMENTCODEUBVSUNPROC>(__gl_GetProcAddress("glReplacementCodeubvSUN"));
    glReplacementCodePointerSUN = reinterpret_cast<PFNGLREPLACEMENTCODEPOINTERSUNPROC>(__gl_GetProcAddress("glReplacementCodePointerSUN"));
}

void init_GL_SUN_vertex() {
    glColor4ubVertex2fSUN = reinterpret_cast<PFNGLCOLOR4UBVERTEX2FSUNPROC>(__gl_GetProcAddress("glColor4ubVertex2fSUN"));
    glColor4ubVertex2fvSUN = reinterpret_cast<PFNGLCOLOR4UBVERTEX2FVSUNPROC>(__gl_GetProcAddress("glColor4ubVertex2fvSUN"));
    glColor4ubVertex3fSUN = reinterpret_cast<PFNGLCOLOR4UBVERTEX3FSUNPROC>(__gl_GetProcAddress("glColor4ubVertex3fSUN"));
    glColor4ubVertex3fvSUN = reinterpret_cast<PFNGLCOLOR4UBVERTEX3FVSUNPROC>(__gl_GetProcAddress("glColor4ubVertex3fvSUN"));
    glColor3fVertex3fSUN = reinterpret_cast<PFNGLCOLOR3FVERTEX3FSUNPROC>(__gl_GetProcAddress("glColor3fVertex3fSUN"));
    glColor3fVertex3fvSUN = reinterpret_cast<PFNGLCOLOR3FVERTEX3FVSUNPROC>(__gl_GetProcAddress("glColor3fVertex3fvSUN"));
    glNormal3fVertex3fSUN = reinterpret_cast<PFNGLNORMAL3FVERTEX3FSUNPROC>(__gl_GetProcAddress("glNormal3fVertex3fSUN"));
    glNormal3fVertex3fvSUN = reinterpret_cast<PFNGLNORMAL3FVERTEX3FVSUNPROC>(__gl_GetProcAddress("glNormal3fVertex3fvSUN"));
    glColor4fNormal3fVertex3fSUN = reinterpret_cast<PFNGLCOLOR4FNORMAL3FVERTEX3FSUNPROC>(__gl_GetProcAddress("glColor4fNormal3fVertex3fSUN"));
    glColor4fNormal3fVertex3fvSUN = reinterpret_cast<PFNGLCOLOR4FNORMAL3FVERTEX3FVSUNPROC>(__gl_GetProcAddress("glColor4fNormal3fVertex3fvSUN"));
    glTexCoord2fVertex3fSUN = reinterpret_cast<PFNGLTEXCOORD2FVERTEX3FSUNPROC>(__gl_GetProcAddress("glTexCoord2fVertex3fSUN"));
    glTexCoord2fVertex3fvSUN = reinterpret_cast<PFNGLTEXCOORD2FVERTEX3FVSUNPROC>(__gl_GetProcAddress("glTexCoord2fVertex3fvSUN"));
    glTexCoord4fVertex4fSUN = reinterpret_cast<PFNGLTEXCOORD4FVERTEX4FSUNPROC>(__gl_GetProcAddress("glTexCoord4fVertex4fSUN"));
    glTexCoord4fVertex4fvSUN = reinterpret_cast<PFNGLTEXCOORD4FVERTEX4FVSUNPROC>(__gl_GetProcAddress("glTexCoord4fVertex4fvSUN"));
    glTexCoord2fColor4ubVertex3fSUN = reinterpret_cast<PFNGLTEXCOORD2FCOLOR4UBVERTEX3FSUNPROC>(__gl_GetProcAddress("glTexCoord2fColor4ubVertex3fSUN"));
    glTexCoord2fColor4ubVertex3fvSUN = reinterpret_cast<PFNGLTEXCOORD2FCOLOR4UBVERTEX3FVSUNPROC>(__gl_GetProcAddress("glTexCoord2fColor4ubVertex3fvSUN"));
    glTexCoord2fColor3fVertex3fSUN = reinterpret_cast<PFNGLTEXCOORD2FCOLOR3FVERTEX3FSUNPROC>(__gl_GetProcAddress("glTexCoord2fColor3fVertex3fSUN"));
    glTexCoord2fColor3fVertex3fvSUN = reinterpret_cast<PFNGLTEXCOORD2FCOLOR3FVERTEX3FVSUNPROC>(__gl_GetProcAddress("glTexCoord2fColor3fVertex3fvSUN"));
    glTexCoord2fNormal3fVertex3fSUN = reinterpret_cast<PFNGLTEXCOORD2FNORMAL3FVERTEX3FSUNPROC>(__gl_GetProcAddress("glTexCoord2fNormal3fVertex3fSUN"));
    glTexCoord2fNormal3fVertex3fvSUN = reinterpret_cast<PFNGLTEXCOORD2FNORMAL3FVERTEX3FVSUNPROC>(__gl_GetProcAddress("glTexCoord2fNormal3fVertex3fvSUN"));
    glTexCoord2fColor4fNormal3fVertex3fSUN = reinterpret_cast<PFNGLTEXCOORD2FCOLOR4FNORMAL3FVERTEX3FSUNPROC>(__gl_GetProcAddress("glTexCoord2fColor4fNormal3fVertex3fSUN"));
    glTexCoord2fColor4fNormal3fVertex3fvSUN = reinterpret_cast<PFNGLTEXCOORD2FCOLOR4FNORMAL3FVERTEX3FVSUNPROC>(__gl_GetProcAddress("glTexCoord2fColor4fNormal3fVertex3fvSUN"));
    glTexCoord4fColor4fNormal3fVertex4fSUN = reinterpret_cast<PFNGLTEXCOORD4FCOLOR4FNORMAL3FVERTEX4FSUNPROC>(__gl_GetProcAddress("glTexCoord4fColor4fNormal3fVertex4fSUN"));
    glTexCoord4fColor4fNormal3fVertex4fvSUN = reinterpret_cast<PFNGLTEXCOORD4FCOLOR4FNORMAL3FVERTEX4FVSUNPROC>(__gl_GetProcAddress("glTexCoord4fColor4fNormal3fVertex4fvSUN"));
    glReplacementCodeuiVertex3fSUN = reinterpret_cast<PFNGLREPLACEMENTCODEUIVERTEX3FSUNPROC>(__gl_GetProcAddress("glReplacementCodeuiVertex3fSUN"));
    glReplacementCodeuiVertex3fvSUN = reinterpret_cast<PFNGLREPLACEMENTCODEUIVERTEX3FVSUNPROC>(__gl_GetProcAddress("glReplacementCodeuiVertex3fvSUN"));
    glReplacementCodeuiColor4ubVertex3fSUN = reinterpret_cast<PFNGLREPLACEMENTCODEUICOLOR4UBVERTEX3FSUNPROC>(__gl_GetProcAddress("glReplacementCodeuiColor4ubVertex3fSUN"));
    glReplacementCodeuiColor4ubVertex3fvSUN = reinterpret_cast<PFNGLREPLACEMENTCODEUICOLOR4UBVERTEX3FVSUNPROC>(__gl_GetProcAddress("glReplacementCodeuiColor4ubVertex3fvSUN"));
    glReplacementCodeuiColor3fVertex3fSUN = reinterpret_cast<PFNGLREPLACEMENTCODEUICOLOR3FVERTEX3FSUNPROC>(__gl_GetProcAddress("glReplacementCodeuiColor3fVertex3fSUN"));
    glReplacementCodeuiColor3fVertex3fvSUN = reinterpret_cast<PFNGLREPLACEMENTCODEUICOLOR3FVERTEX3FVSUNPROC>(__gl_GetProcAddress("glReplacementCodeuiColor3fVertex3fvSUN"));
    glReplacementCodeuiNormal3fVertex3fSUN = reinterpret_cast<PFNGLREPLACEMENTCODEUINORMAL3FVERTEX3FSUNPROC>(__gl_GetProcAddress("glReplacementCodeuiNormal3fVertex3fSUN"));
    glReplacementCodeuiNormal3fVertex3fvSUN = reinterpret_cast<PFNGLREPLACEMENTCODEUINORMAL3FVERTEX3FVSUNPROC>(__gl_GetProcAddress("glReplacementCodeuiNormal3fVertex3fvSUN"));
    glReplacementCodeuiColor4fNormal3fVertex3fSUN = reinterpret_cast<PFNGLREPLACEMENTCODEUICOLOR4FNORMAL3FVERTEX3FSUNPROC>(__gl_GetProcAddress("glReplacementCodeuiColor4fNormal3fVertex3fSUN"));
    glReplacementCodeuiColor4fNormal3fVertex3fvSUN = reinterpret_cast<PFNGLREPLACEMENTCODEUICOLOR4FNORMAL3FVERTEX3FVSUNPROC>(__gl_GetProcAddress("glReplacementCodeuiColor4fNormal3fVertex3fvSUN"));
    glReplacementCodeuiTexCoord2fVertex3fSUN = reinterpret_cast<PFNGLREPLACEMENTCODEUITEXCOORD2FVERTEX3FSUNPROC>(__gl_GetProcAddress("glReplacementCodeuiTexCoord2fVertex3fSUN"));
    glReplacementCodeuiTexCoord2fVertex3fvSUN = reinterpret_cast<PFNGLREPLACEMENTCODEUITEXCOORD2FVERTEX3FVSUNPROC>(__gl_GetProcAddress("glReplacementCodeuiTexCoord2fVertex3fvSUN"));
    glReplacementCodeuiTexCoord2fNormal3fVertex3fSUN = reinterpret_cast<PFNGLREPLACEMENTCODEUITEXCOORD2FNORMAL3FVERTEX3FSUNPROC>(__gl_GetProcAddress("glReplacementCodeuiTexCoord2fNormal3fVertex3fSUN"));
    glReplacementCodeuiTexCoord2fNormal3fVertex3fvSUN = reinterpret_cast<PFNGLREPLACEMENTCODEUITEXCOORD2FNORMAL3FVERTEX3FVSUNPROC>(__gl_GetProcAddress("glReplacementCodeuiTexCoord2fNormal3fVertex3fvSUN"));
    glReplacementCodeuiTexCoord2fColor4fNormal3fVertex3fSUN = reinterpret_cast<PFNGLREPLACEMENTCODEUITEXCOORD2FCOLOR4FNORMAL3FVERTEX3FSUNPROC>(__gl_GetProcAddress("glReplacementCodeuiTexCoord2fColor4fNormal3fVertex3fSUN"));
    glReplacementCodeuiTexCoord2fColor4fNormal3fVertex3fvSUN = reinterpret_cast<PFNGLREPLACEMENTCODEUITEXCOORD2FCOLOR4FNORMAL3FVERTEX3FVSUNPROC>(__gl_GetProcAddress("glReplacementCodeuiTexCoord2fColor4fNormal3fVertex3fvSUN"));
}

void init_GL_WIN_phong_shading() {}

void init_GL_WIN_specular_fog() {}
