// SPDX-License-Identifier: MIT
// Entry points, flags and resolving functions: arb group.
// Made by tools/generate_glext.py from OpenGL headers of 20220530; don't edit.
// clang-format off

#include "glext/glextloader.h"

PFNGLPRIMITIVEBOUNDINGBOXARBPROC glPrimitiveBoundingBoxARB = nullptr;
PFNGLGETTEXTUREHANDLEARBPROC glGetTextureHandleARB = nullptr;
PFNGLGETTEXTURESAMPLERHANDLEARBPROC glGetTextureSamplerHandleARB = nullptr;
PFNGLMAKETEXTUREHANDLERESIDENTARBPROC glMakeTextureHandleResidentARB = nullptr;
PFNGLMAKETEXTUREHANDLENONRESIDENTARBPROC glMakeTextureHandleNonResidentARB = nullptr;
PFNGLGETIMAGEHANDLEARBPROC glGetImageHandleARB = nullptr;
PFNGLMAKEIMAGEHANDLERESIDENTARBPROC glMakeImageHandleResidentARB = nullptr;
PFNGLMAKEIMAGEHANDLENONRESIDENTARBPROC glMakeImageHandleNonResidentARB = nullptr;
PFNGLUNIFORMHANDLEUI64ARBPROC glUniformHandleui64ARB = nullptr;
PFNGLUNIFORMHANDLEUI64VARBPROC glUniformHandleui64vARB = nullptr;
PFNGLPROGRAMUNIFORMHANDLEUI64ARBPROC glProgramUniformHandleui64ARB = nullptr;
PFNGLPROGRAMUNIFORMHANDLEUI64VARBPROC glProgramUniformHandleui64vARB = nullptr;
PFNGLISTEXTUREHANDLERESIDENTARBPROC glIsTextureHandleResidentARB = nullptr;
PFNGLISIMAGEHANDLERESIDENTARBPROC glIsImageHandleResidentARB = nullptr;
PFNGLVERTEXATTRIBL1UI64ARBPROC glVertexAttribL1ui64ARB = nullptr;
PFNGLVERTEXATTRIBL1UI64VARBPROC glVertexAttribL1ui64vARB = nullptr;
PFNGLGETVERTEXATTRIBLUI64VARBPROC glGetVertexAttribLui64vARB = nullptr;
PFNGLCREATESYNCFROMCLEVENTARBPROC glCreateSyncFromCLeventARB = nullptr;
PFNGLCLAMPCOLORARBPROC glClampColorARB = nullptr;
PFNGLDISPATCHCOMPUTEGROUPSIZEARBPROC glDispatchComputeGroupSizeARB = nullptr;
PFNGLDEBUGMESSAGECONTROLARBPROC glDebugMessageControlARB = nullptr;
PFNGLDEBUGMESSAGEINSERTARBPROC glDebugMessageInsertARB = nullptr;
PFNGLDEBUGMESSAGECALLBACKARBPROC glDebugMessageCallbackARB = nullptr;
PFNGLGETDEBUGMESSAGELOGARBPROC glGetDebugMessageLogARB = nullptr;
PFNGLDRAWBUFFERSARBPROC glDrawBuffersARB = nullptr;
PFNGLBLENDEQUATIONIARBPROC glBlendEquationiARB = nullptr;
PFNGLBLENDEQUATIONSEPARATEIARBPROC glBlendEquationSeparateiARB = nullptr;
PFNGLBLENDFUNCIARBPROC glBlendFunciARB = nullptr;
PFNGLBLENDFUNCSEPARATEIARBPROC glBlendFuncSeparateiARB = nullptr;
PFNGLDRAWARRAYSINSTANCEDARBPROC glDrawArraysInstancedARB = nullptr;
PFNGLDRAWELEMENTSINSTANCEDARBPROC glDrawElementsInstancedARB = nullptr;
PFNGLPROGRAMSTRINGARBPROC glProgramStringARB = nullptr;
PFNGLBINDPROGRAMARBPROC glBindProgramARB = nullptr;
PFNGLDELETEPROGRAMSARBPROC glDeleteProgramsARB = nullptr;
PFNGLGENPROGRAMSARBPROC glGenProgramsARB = nullptr;
PFNGLPROGRAMENVPARAMETER4DARBPROC glProgramEnvParameter4dARB = nullptr;
PFNGLPROGRAMENVPARAMETER4DVARBPROC glProgramEnvParameter4dvARB = nullptr;
PFNGLPROGRAMENVPARAMETER4FARBPROC glProgramEnvParameter4fARB = nullptr;
PFNGLPROGRAMENVPARAMETER4FVARBPROC glProgramEnvParameter4fvARB = nullptr;
PFNGLPROGRAMLOCALPARAMETER4DARBPROC glProgramLocalParameter4dARB = nullptr;
PFNGLPROGRAMLOCALPARAMETER4DVARBPROC glProgramLocalParameter4dvARB = nullptr;
PFNGLPROGRAMLOCALPARAMETER4FARBPROC glProgramLocalParameter4fARB = nullptr;
PFNGLPROGRAMLOCALPARAMETER4FVARBPROC glProgramLocalParameter4fvARB = nullptr;
PFNGLGETPROGRAMENVPARAMETERDVARBPROC glGetProgramEnvParameterdvARB = nullptr;
PFNGLGETPROGRAMENVPARAMETERFVARBPROC glGetProgramEnvParameterfvARB = nullptr;
PFNGLGETPROGRAMLOCALPARAMETERDVARBPROC glGetProgramLocalParameterdvARB = nullptr;
PFNGLGETPROGRAMLOCALPARAMETERFVARBPROC glGetProgramLocalParameterfvARB = nullptr;
PFNGLGETPROGRAMIVARBPROC glGetProgramivARB = nullptr;
PFNGLGETPROGRAMSTRINGARBPROC glGetProgramStringARB = nullptr;
PFNGLISPROGRAMARBPROC glIsProgramARB = nullptr;
PFNGLPROGRAMPARAMETERIARBPROC glProgramParameteriARB = nullptr;
PFNGLFRAMEBUFFERTEXTUREARBPROC glFramebufferTextureARB = nullptr;
PFNGLFRAMEBUFFERTEXTURELAYERARBPROC glFramebufferTextureLayerARB = nullptr;
PFNGLFRAMEBUFFERTEXTUREFACEARBPROC glFramebufferTextureFaceARB = nullptr;
PFNGLSPECIALIZESHADERARBPROC glSpecializeShaderARB = nullptr;
PFNGLUNIFORM1I64ARBPROC glUniform1i64ARB = nullptr;
PFNGLUNIFORM2I64ARBPROC glUniform2i64ARB = nullptr;
PFNGLUNIFORM3I64ARBPROC glUniform3i64ARB = nullptr;
PFNGLUNIFORM4I64ARBPROC glUniform4i64ARB = nullptr;
PFNGLUNIFORM1I64VARBPROC glUniform1i64vARB = nullptr;
PFNGLUNIFORM2I64VARBPROC glUniform2i64vARB = nullptr;
PFNGLUNIFORM3I64VARBPROC glUniform3i64vARB = nullptr;
PFNGLUNIFORM4I64VARBPROC glUniform4i64vARB = nullptr;
PFNGLUNIFORM1UI64ARBPROC glUniform1ui64ARB = nullptr;
PFNGLUNIFORM2UI64ARBPROC glUniform2ui64ARB = nullptr;
PFNGLUNIFORM3UI64ARBPROC glUniform3ui64ARB = nullptr;
PFNGLUNIFORM4UI64ARBPROC glUniform4ui64ARB = nullptr;
PFNGLUNIFORM1UI64VARBPROC glUniform1ui64vARB = nullptr;
PFNGLUNIFORM2UI64VARBPROC glUniform2ui64vARB = nullptr;
PFNGLUNIFORM3UI64VARBPROC glUniform3ui64vARB = nullptr;
PFNGLUNIFORM4UI64VARBPROC glUniform4ui64vARB = nullptr;
PFNGLGETUNIFORMI64VARBPROC glGetUniformi64vARB = nullptr;
PFNGLGETUNIFORMUI64VARBPROC glGetUniformui64vARB = nullptr;
PFNGLGETNUNIFORMI64VARBPROC glGetnUniformi64vARB = nullptr;
PFNGLGETNUNIFORMUI64VARBPROC glGetnUniformui64vARB = nullptr;
PFNGLPROGRAMUNIFORM1I64ARBPROC glProgramUniform1i64ARB = nullptr;
PFNGLPROGRAMUNIFORM2I64ARBPROC glProgramUniform2i64ARB = nullptr;
PFNGLPROGRAMUNIFORM3I64ARBPROC glProgramUniform3i64ARB = nullptr;
PFNGLPROGRAMUNIFORM4I64ARBPROC glProgramUniform4i64ARB = nullptr;
PFNGLPROGRAMUNIFORM1I64VARBPROC glProgramUniform1i64vARB = nullptr;
PFNGLPROGRAMUNIFORM2I64VARBPROC glProgramUniform2i64vARB = nullptr;
PFNGLPROGRAMUNIFORM3I64VARBPROC glProgramUniform3i64vARB = nullptr;
PFNGLPROGRAMUNIFORM4I64VARBPROC glProgramUniform4i64vARB = nullptr;
PFNGLPROGRAMUNIFORM1UI64ARBPROC glProgramUniform1ui64ARB = nullptr;
PFNGLPROGRAMUNIFORM2UI64ARBPROC glProgramUniform2ui64ARB = nullptr;
PFNGLPROGRAMUNIFORM3UI64ARBPROC glProgramUniform3ui64ARB = nullptr;
PFNGLPROGRAMUNIFORM4UI64ARBPROC glProgramUniform4ui64ARB = nullptr;
PFNGLPROGRAMUNIFORM1UI64VARBPROC glProgramUniform1ui64vARB = nullptr;
PFNGLPROGRAMUNIFORM2UI64VARBPROC glProgramUniform2ui64vARB = nullptr;
PFNGLPROGRAMUNIFORM3UI64VARBPROC glProgramUniform3ui64vARB = nullptr;
PFNGLPROGRAMUNIFORM4UI64VARBPROC glProgramUniform4ui64vARB = nullptr;
PFNGLCOLORTABLEPROC glColorTable = nullptr;
PFNGLCOLORTABLEPARAMETERFVPROC glColorTableParameterfv = nullptr;
PFNGLCOLORTABLEPARAMETERIVPROC glColorTableParameteriv = nullptr;
PFNGLCOPYCOLORTABLEPROC glCopyColorTable = nullptr;
PFNGLGETCOLORTABLEPROC glGetColorTable = nullptr;
PFNGLGETCOLORTABLEPARAMETERFVPROC glGetColorTableParameterfv = nullptr;
PFNGLGETCOLORTABLEPARAMETERIVPROC glGetColorTableParameteriv = nullptr;
PFNGLCOLORSUBTABLEPROC glColorSubTable = nullptr;
PFNGLCOPYCOLORSUBTABLEPROC glCopyColorSubTable = nullptr;
PFNGLCONVOLUTIONFILTER1DPROC glConvolutionFilter1D = nullptr;
PFNGLCONVOLUTIONFILTER2DPROC glConvolutionFilter2D = nullptr;
PFNGLCONVOLUTIONPARAMETERFPROC glConvolutionParameterf = nullptr;
PFNGLCONVOLUTIONPARAMETERFVPROC glConvolutionParameterfv = nullptr;
PFNGLCONVOLUTIONPARAMETERIPROC glConvolutionParameteri = nullptr;
PFNGLCONVOLUTIONPARAMETERIVPROC glConvolutionParameteriv = nullptr;
PFNGLCOPYCONVOLUTIONFILTER1DPROC glCopyConvolutionFilter1D = nullptr;
PFNGLCOPYCONVOLUTIONFILTER2DPROC glCopyConvolutionFilter2D = nullptr;
PFNGLGETCONVOLUTIONFILTERPROC glGetConvolutionFilter = nullptr;
PFNGLGETCONVOLUTIONPARAMETERFVPROC glGetConvolutionParameterfv = nullptr;
PFNGLGETCONVOLUTIONPARAMETERIVPROC glGetConvolutionParameteriv = nullptr;
PFNGLGETSEPARABLEFILTERPROC glGetSeparableFilter = nullptr;
PFNGLSEPARABLEFILTER2DPROC glSeparableFilter2D = nullptr;
PFNGLGETHISTOGRAMPROC glGetHistogram = nullptr;
PFNGLGETHISTOGRAMPARAMETERFVPROC glGetHistogramParameterfv = nullptr;
PFNGLGETHISTOGRAMPARAMETERIVPROC glGetHistogramParameteriv = nullptr;
PFNGLGETMINMAXPROC glGetMinmax = nullptr;
PFNGLGETMINMAXPARAMETERFVPROC glGetMinmaxParameterfv = nullptr;
PFNGLGETMINMAXPARAMETERIVPROC glGetMinmaxParameteriv = nullptr;
PFNGLHISTOGRAMPROC glHistogram = nullptr;
PFNGLMINMAXPROC glMinmax = nullptr;
PFNGLRESETHISTOGRAMPROC glResetHistogram = nullptr;
PFNGLRESETMINMAXPROC glResetMinmax = nullptr;
PFNGLMULTIDRAWARRAYSINDIRECTCOUNTARBPROC glMultiDrawArraysIndirectCountARB = nullptr;
PFNGLMULTIDRAWELEMENTSINDIRECTCOUNTARBPROC glMultiDrawElementsIndirectCountARB = nullptr;
PFNGLVERTEXATTRIBDIVISORARBPROC glVertexAttribDivisorARB = nullptr;
PFNGLCURRENTPALETTEMATRIXARBPROC glCurrentPaletteMatrixARB = nullptr;
PFNGLMATRIXINDEXUBVARBPROC glMatrixIndexubvARB = nullptr;
PFNGLMATRIXINDEXUSVARBPROC glMatrixIndexusvARB = nullptr;
PFNGLMATRIXINDEXUIVARBPROC glMatrixIndexuivARB = nullptr;
PFNGLMATRIXINDEXPOINTERARBPROC glMatrixIndexPointerARB = nullptr;
PFNGLSAMPLECOVERAGEARBPROC glSampleCoverageARB = nullptr;
PFNGLACTIVETEXTUREARBPROC glActiveTextureARB = nullptr;
PFNGLCLIENTACTIVETEXTUREARBPROC glClientActiveTextureARB = nullptr;
PFNGLMULTITEXCOORD1DARBPROC glMultiTexCoord1dARB = nullptr;
PFNGLMULTITEXCOORD1DVARBPROC glMultiTexCoord1dvARB = nullptr;
PFNGLMULTITEXCOORD1FARBPROC glMultiTexCoord1fARB = nullptr;
PFNGLMULTITEXCOORD1FVARBPROC glMultiTexCoord1fvARB = nullptr;
PFNGLMULTITEXCOORD1IARBPROC glMultiTexCoord1iARB = nullptr;
PFNGLMULTITEXCOORD1IVARBPROC glMultiTexCoord1ivARB = nullptr;
PFNGLMULTITEXCOORD1SARBPROC glMultiTexCoord1sARB = nullptr;
PFNGLMULTITEXCOORD1SVARBPROC glMultiTexCoord1svARB = nullptr;
PFNGLMULTITEXCOORD2DARBPROC glMultiTexCoord2dARB = nullptr;
PFNGLMULTITEXCOORD2DVARBPROC glMultiTexCoord2dvARB = nullptr;
PFNGLMULTITEXCOORD2FARBPROC glMultiTexCoord2fARB = nullptr;
PFNGLMULTITEXCOORD2FVARBPROC glMultiTexCoord2fvARB = nullptr;
PFNGLMULTITEXCOORD2IARBPROC glMultiTexCoord2iARB = nullptr;
PFNGLMULTITEXCOORD2IVARBPROC glMultiTexCoord2ivARB = nullptr;
PFNGLMULTITEXCOORD2SARBPROC glMultiTexCoord2sARB = nullptr;
PFNGLMULTITEXCOORD2SVARBPROC glMultiTexCoord2svARB = nullptr;
PFNGLMULTITEXCOORD3DARBPROC glMultiTexCoord3dARB = nullptr;
PFNGLMULTITEXCOORD3DVARBPROC glMultiTexCoord3dvARB = nullptr;
PFNGLMULTITEXCOORD3FARBPROC glMultiTexCoord3fARB = nullptr;
PFNGLMULTITEXCOORD3FVARBPROC glMultiTexCoord3fvARB = nullptr;
PFNGLMULTITEXCOORD3IARBPROC glMultiTexCoord3iARB = nullptr;
PFNGLMULTITEXCOORD3IVARBPROC glMultiTexCoord3ivARB = nullptr;
PFNGLMULTITEXCOORD3SARBPROC glMultiTexCoord3sARB = nullptr;
PFNGLMULTITEXCOORD3SVARBPROC glMultiTexCoord3svARB = nullptr;
PFNGLMULTITEXCOORD4DARBPROC glMultiTexCoord4dARB = nullptr;
PFNGLMULTITEXCOORD4DVARBPROC glMultiTexCoord4dvARB = nullptr;
PFNGLMULTITEXCOORD4FARBPROC glMultiTexCoord4fARB = nullptr;
PFNGLMULTITEXCOORD4FVARBPROC glMultiTexCoord4fvARB = nullptr;
PFNGLMULTITEXCOORD4IARBPROC glMultiTexCoord4iARB = nullptr;
PFNGLMULTITEXCOORD4IVARBPROC glMultiTexCoord4ivARB = nullptr;
PFNGLMULTITEXCOORD4SARBPROC glMultiTexCoord4sARB = nullptr;
PFNGLMULTITEXCOORD4SVARBPROC glMultiTexCoord4svARB = nullptr;
PFNGLGENQUERIESARBPROC glGenQueriesARB = nullptr;
PFNGLDELETEQUERIESARBPROC glDeleteQueriesARB = nullptr;
PFNGLISQUERYARBPROC glIsQueryARB = nullptr;
PFNGLBEGINQUERYARBPROC glBeginQueryARB = nullptr;
PFNGLENDQUERYARBPROC glEndQueryARB = nullptr;
PFNGLGETQUERYIVARBPROC glGetQueryivARB = nullptr;
PFNGLGETQUERYOBJECTIVARBPROC glGetQueryObjectivARB = nullptr;
PFNGLGETQUERYOBJECTUIVARBPROC glGetQueryObjectuivARB = nullptr;
PFNGLMAXSHADERCOMPILERTHREADSARBPROC glMaxShaderCompilerThreadsARB = nullptr;
PFNGLPOINTPARAMETERFARBPROC glPointParameterfARB = nullptr;
PFNGLPOINTPARAMETERFVARBPROC glPointParameterfvARB = nullptr;
PFNGLGETGRAPHICSRESETSTATUSARBPROC glGetGraphicsResetStatusARB = nullptr;
PFNGLGETNTEXIMAGEARBPROC glGetnTexImageARB = nullptr;
PFNGLREADNPIXELSARBPROC glReadnPixelsARB = nullptr;
PFNGLGETNCOMPRESSEDTEXIMAGEARBPROC glGetnCompressedTexImageARB = nullptr;
PFNGLGETNUNIFORMFVARBPROC glGetnUniformfvARB = nullptr;
PFNGLGETNUNIFORMIVARBPROC glGetnUniformivARB = nullptr;
PFNGLGETNUNIFORMUIVARBPROC glGetnUniformuivARB = nullptr;
PFNGLGETNUNIFORMDVARBPROC glGetnUniformdvARB = nullptr;
PFNGLGETNMAPDVARBPROC glGetnMapdvARB = nullptr;
PFNGLGETNMAPFVARBPROC glGetnMapfvARB = nullptr;
PFNGLGETNMAPIVARBPROC glGetnMapivARB = nullptr;
PFNGLGETNPIXELMAPFVARBPROC glGetnPixelMapfvARB = nullptr;
PFNGLGETNPIXELMAPUIVARBPROC glGetnPixelMapuivARB = nullptr;
PFNGLGETNPIXELMAPUSVARBPROC glGetnPixelMapusvARB = nullptr;
PFNGLGETNPOLYGONSTIPPLEARBPROC glGetnPolygonStippleARB = nullptr;
PFNGLGETNCOLORTABLEARBPROC glGetnColorTableARB = nullptr;
PFNGLGETNCONVOLUTIONFILTERARBPROC glGetnConvolutionFilterARB = nullptr;
PFNGLGETNSEPARABLEFILTERARBPROC glGetnSeparableFilterARB = nullptr;
PFNGLGETNHISTOGRAMARBPROC glGetnHistogramARB = nullptr;
PFNGLGETNMINMAXARBPROC glGetnMinmaxARB = nullptr;
PFNGLFRAMEBUFFERSAMPLELOCATIONSFVARBPROC glFramebufferSampleLocationsfvARB = nullptr;
PFNGLNAMEDFRAMEBUFFERSAMPLELOCATIONSFVARBPROC glNamedFramebufferSampleLocationsfvARB = nullptr;
PFNGLEVALUATEDEPTHVALUESARBPROC glEvaluateDepthValuesARB = nullptr;
PFNGLMINSAMPLESHADINGARBPROC glMinSampleShadingARB = nullptr;
PFNGLDELETEOBJECTARBPROC glDeleteObjectARB = nullptr;
PFNGLGETHANDLEARBPROC glGetHandleARB = nullptr;
PFNGLDETACHOBJECTARBPROC glDetachObjectARB = nullptr;
PFNGLCREATESHADEROBJECTARBPROC glCreateShaderObjectARB = nullptr;
PFNGLSHADERSOURCEARBPROC glShaderSourceARB = nullptr;
PFNGLCOMPILESHADERARBPROC glCompileShaderARB = nullptr;
PFNGLCREATEPROGRAMOBJECTARBPROC glCreateProgramObjectARB = nullptr;
PFNGLATTACHOBJECTARBPROC glAttachObjectARB = nullptr;
PFNGLLINKPROGRAMARBPROC glLinkProgramARB = nullptr;
PFNGLUSEPROGRAMOBJECTARBPROC glUseProgramObjectARB = nullptr;
PFNGLVALIDATEPROGRAMARBPROC glValidateProgramARB = nullptr;
PFNGLUNIFORM1FARBPROC glUniform1fARB = nullptr;
PFNGLUNIFORM2FARBPROC glUniform2fARB = nullptr;
PFNGLUNIFORM3FARBPROC glUniform3fARB = nullptr;
PFNGLUNIFORM4FARBPROC glUniform4fARB = nullptr;
PFNGLUNIFORM1IARBPROC glUniform1iARB = nullptr;
PFNGLUNIFORM2IARBPROC glUniform2iARB = nullptr;
PFNGLUNIFORM3IARBPROC glUniform3iARB = nullptr;
PFNGLUNIFORM4IARBPROC glUniform4iARB = nullptr;
PFNGLUNIFORM1FVARBPROC glUniform1fvARB = nullptr;
PFNGLUNIFORM2FVARBPROC glUniform2fvARB = nullptr;
PFNGLUNIFORM3FVARBPROC glUniform3fvARB = nullptr;
PFNGLUNIFORM4FVARBPROC glUniform4fvARB = nullptr;
PFNGLUNIFORM1IVARBPROC glUniform1ivARB = nullptr;
PFNGLUNIFORM2IVARBPROC glUniform2ivARB = nullptr;
PFNGLUNIFORM3IVARBPROC glUniform3ivARB = nullptr;
PFNGLUNIFORM4IVARBPROC glUniform4ivARB = nullptr;
PFNGLUNIFORMMATRIX2FVARBPROC glUniformMatrix2fvARB = nullptr;
PFNGLUNIFORMMATRIX3FVARBPROC glUniformMatrix3fvARB = nullptr;
PFNGLUNIFORMMATRIX4FVARBPROC glUniformMatrix4fvARB = nullptr;
PFNGLGETOBJECTPARAMETERFVARBPROC glGetObjectParameterfvARB = nullptr;
PFNGLGETOBJECTPARAMETERIVARBPROC glGetObjectParameterivARB = nullptr;
PFNGLGETINFOLOGARBPROC glGetInfoLogARB = nullptr;
PFNGLGETATTACHEDOBJECTSARBPROC glGetAttachedObjectsARB = nullptr;
PFNGLGETUNIFORMLOCATIONARBPROC glGetUniformLocationARB = nullptr;
PFNGLGETACTIVEUNIFORMARBPROC glGetActiveUniformARB = nullptr;
PFNGLGETUNIFORMFVARBPROC glGetUniformfvARB = nullptr;
PFNGLGETUNIFORMIVARBPROC glGetUniformivARB = nullptr;
PFNGLGETSHADERSOURCEARBPROC glGetShaderSourceARB = nullptr;
PFNGLNAMEDSTRINGARBPROC glNamedStringARB = nullptr;
PFNGLDELETENAMEDSTRINGARBPROC glDeleteNamedStringARB = nullptr;
PFNGLCOMPILESHADERINCLUDEARBPROC glCompileShaderIncludeARB = nullptr;
PFNGLISNAMEDSTRINGARBPROC glIsNamedStringARB = nullptr;
PFNGLGETNAMEDSTRINGARBPROC glGetNamedStringARB = nullptr;
PFNGLGETNAMEDSTRINGIVARBPROC glGetNamedStringivARB = nullptr;
PFNGLBUFFERPAGECOMMITMENTARBPROC glBufferPageCommitmentARB = nullptr;
PFNGLNAMEDBUFFERPAGECOMMITMENTEXTPROC glNamedBufferPageCommitmentEXT = nullptr;
PFNGLNAMEDBUFFERPAGECOMMITMENTARBPROC glNamedBufferPageCommitmentARB = nullptr;
PFNGLTEXPAGECOMMITMENTARBPROC glTexPageCommitmentARB = nullptr;
PFNGLTEXBUFFERARBPROC glTexBufferARB = nullptr;
PFNGLCOMPRESSEDTEXIMAGE3DARBPROC glCompressedTexImage3DARB = nullptr;
PFNGLCOMPRESSEDTEXIMAGE2DARBPROC glCompressedTexImage2DARB = nullptr;
PFNGLCOMPRESSEDTEXIMAGE1DARBPROC glCompressedTexImage1DARB = nullptr;
PFNGLCOMPRESSEDTEXSUBIMAGE3DARBPROC glCompressedTexSubImage3DARB = nullptr;
PFNGLCOMPRESSEDTEXSUBIMAGE2DARBPROC glCompressedTexSubImage2DARB = nullptr;
PFNGLCOMPRESSEDTEXSUBIMAGE1DARBPROC glCompressedTexSubImage1DARB = nullptr;
PFNGLGETCOMPRESSEDTEXIMAGEARBPROC glGetCompressedTexImageARB = nullptr;
PFNGLLOADTRANSPOSEMATRIXFARBPROC glLoadTransposeMatrixfARB = nullptr;
PFNGLLOADTRANSPOSEMATRIXDARBPROC glLoadTransposeMatrixdARB = nullptr;
PFNGLMULTTRANSPOSEMATRIXFARBPROC glMultTransposeMatrixfARB = nullptr;
PFNGLMULTTRANSPOSEMATRIXDARBPROC glMultTransposeMatrixdARB = nullptr;
PFNGLWEIGHTBVARBPROC glWeightbvARB = nullptr;
PFNGLWEIGHTSVARBPROC glWeightsvARB = nullptr;
PFNGLWEIGHTIVARBPROC glWeightivARB = nullptr;
PFNGLWEIGHTFVARBPROC glWeightfvARB = nullptr;
PFNGLWEIGHTDVARBPROC glWeightdvARB = nullptr;
PFNGLWEIGHTUBVARBPROC glWeightubvARB = nullptr;
PFNGLWEIGHTUSVARBPROC glWeightusvARB = nullptr;
PFNGLWEIGHTUIVARBPROC glWeightuivARB = nullptr;
PFNGLWEIGHTPOINTERARBPROC glWeightPointerARB = nullptr;
PFNGLVERTEXBLENDARBPROC glVertexBlendARB = nullptr;
PFNGLBINDBUFFERARBPROC glBindBufferARB = nullptr;
PFNGLDELETEBUFFERSARBPROC glDeleteBuffersARB = nullptr;
PFNGLGENBUFFERSARBPROC glGenBuffersARB = nullptr;
PFNGLISBUFFERARBPROC glIsBufferARB = nullptr;
PFNGLBUFFERDATAARBPROC glBufferDataARB = nullptr;
PFNGLBUFFERSUBDATAARBPROC glBufferSubDataARB = nullptr;
PFNGLGETBUFFERSUBDATAARBPROC glGetBufferSubDataARB = nullptr;
PFNGLMAPBUFFERARBPROC glMapBufferARB = nullptr;
PFNGLUNMAPBUFFERARBPROC glUnmapBufferARB = nullptr;
PFNGLGETBUFFERPARAMETERIVARBPROC glGetBufferParameterivARB = nullptr;
PFNGLGETBUFFERPOINTERVARBPROC glGetBufferPointervARB = nullptr;
PFNGLVERTEXATTRIB1DARBPROC glVertexAttrib1dARB = nullptr;
PFNGLVERTEXATTRIB1DVARBPROC glVertexAttrib1dvARB = nullptr;
PFNGLVERTEXATTRIB1FARBPROC glVertexAttrib1fARB = nullptr;
PFNGLVERTEXATTRIB1FVARBPROC glVertexAttrib1fvARB = nullptr;
PFNGLVERTEXATTRIB1SARBPROC glVertexAttrib1sARB = nullptr;
PFNGLVERTEXATTRIB1SVARBPROC glVertexAttrib1svARB = nullptr;
PFNGLVERTEXATTRIB2DARBPROC glVertexAttrib2dARB = nullptr;
PFNGLVERTEXATTRIB2DVARBPROC glVertexAttrib2dvARB = nullptr;
PFNGLVERTEXATTRIB2FARBPROC glVertexAttrib2fARB = nullptr;
PFNGLVERTEXATTRIB2FVARBPROC glVertexAttrib2fvARB = nullptr;
PFNGLVERTEXATTRIB2SARBPROC glVertexAttrib2sARB = nullptr;
PFNGLVERTEXATTRIB2SVARBPROC glVertexAttrib2svARB = nullptr;
PFNGLVERTEXATTRIB3DARBPROC glVertexAttrib3dARB = nullptr;
PFNGLVERTEXATTRIB3DVARBPROC glVertexAttrib3dvARB = nullptr;
PFNGLVERTEXATTRIB3FARBPROC glVertexAttrib3fARB = nullptr;
PFNGLVERTEXATTRIB3FVARBPROC glVertexAttrib3fvARB = nullptr;
PFNGLVERTEXATTRIB3SARBPROC glVertexAttrib3sARB = nullptr;
PFNGLVERTEXATTRIB3SVARBPROC glVertexAttrib3svARB = nullptr;
PFNGLVERTEXATTRIB4NBVARBPROC glVertexAttrib4NbvARB = nullptr;
PFNGLVERTEXATTRIB4NIVARBPROC glVertexAttrib4NivARB = nullptr;
PFNGLVERTEXATTRIB4NSVARBPROC glVertexAttrib4NsvARB = nullptr;
PFNGLVERTEXATTRIB4NUBARBPROC glVertexAttrib4NubARB = nullptr;
PFNGLVERTEXATTRIB4NUBVARBPROC glVertexAttrib4NubvARB = nullptr;
PFNGLVERTEXATTRIB4NUIVARBPROC glVertexAttrib4NuivARB = nullptr;
PFNGLVERTEXATTRIB4NUSVARBPROC glVertexAttrib4NusvARB = nullptr;
PFNGLVERTEXATTRIB4BVARBPROC glVertexAttrib4bvARB = nullptr;
PFNGLVERTEXATTRIB4DARBPROC glVertexAttrib4dARB = nullptr;
PFNGLVERTEXATTRIB4DVARBPROC glVertexAttrib4dvARB = nullptr;
PFNGLVERTEXATTRIB4FARBPROC glVertexAttrib4fARB = nullptr;
PFNGLVERTEXATTRIB4FVARBPROC glVertexAttrib4fvARB = nullptr;
PFNGLVERTEXATTRIB4IVARBPROC glVertexAttrib4ivARB = nullptr;
PFNGLVERTEXATTRIB4SARBPROC glVertexAttrib4sARB = nullptr;
PFNGLVERTEXATTRIB4SVARBPROC glVertexAttrib4svARB = nullptr;
PFNGLVERTEXATTRIB4UBVARBPROC glVertexAttrib4ubvARB = nullptr;
PFNGLVERTEXATTRIB4UIVARBPROC glVertexAttrib4uivARB = nullptr;
PFNGLVERTEXATTRIB4USVARBPROC glVertexAttrib4usvARB = nullptr;
PFNGLVERTEXATTRIBPOINTERARBPROC glVertexAttribPointerARB = nullptr;
PFNGLENABLEVERTEXATTRIBARRAYARBPROC glEnableVertexAttribArrayARB = nullptr;
PFNGLDISABLEVERTEXATTRIBARRAYARBPROC glDisableVertexAttribArrayARB = nullptr;
PFNGLGETVERTEXATTRIBDVARBPROC glGetVertexAttribdvARB = nullptr;
PFNGLGETVERTEXATTRIBFVARBPROC glGetVertexAttribfvARB = nullptr;
PFNGLGETVERTEXATTRIBIVARBPROC glGetVertexAttribivARB = nullptr;
PFNGLGETVERTEXATTRIBPOINTERVARBPROC glGetVertexAttribPointervARB = nullptr;
PFNGLBINDATTRIBLOCATIONARBPROC glBindAttribLocationARB = nullptr;
PFNGLGETACTIVEATTRIBARBPROC glGetActiveAttribARB = nullptr;
PFNGLGETATTRIBLOCATIONARBPROC glGetAttribLocationARB = nullptr;
PFNGLDEPTHRANGEARRAYDVNVPROC glDepthRangeArraydvNV = nullptr;
PFNGLDEPTHRANGEINDEXEDDNVPROC glDepthRangeIndexeddNV = nullptr;
PFNGLWINDOWPOS2DARBPROC glWindowPos2dARB = nullptr;
PFNGLWINDOWPOS2DVARBPROC glWindowPos2dvARB = nullptr;
PFNGLWINDOWPOS2FARBPROC glWindowPos2fARB = nullptr;
PFNGLWINDOWPOS2FVARBPROC glWindowPos2fvARB = nullptr;
PFNGLWINDOWPOS2IARBPROC glWindowPos2iARB = nullptr;
PFNGLWINDOWPOS2IVARBPROC glWindowPos2ivARB = nullptr;
PFNGLWINDOWPOS2SARBPROC glWindowPos2sARB = nullptr;
PFNGLWINDOWPOS2SVARBPROC glWindowPos2svARB = nullptr;
PFNGLWINDOWPOS3DARBPROC glWindowPos3dARB = nullptr;
PFNGLWINDOWPOS3DVARBPROC glWindowPos3dvARB = nullptr;
PFNGLWINDOWPOS3FARBPROC glWindowPos3fARB = nullptr;
PFNGLWINDOWPOS3FVARBPROC glWindowPos3fvARB = nullptr;
PFNGLWINDOWPOS3IARBPROC glWindowPos3iARB = nullptr;
PFNGLWINDOWPOS3IVARBPROC glWindowPos3ivARB = nullptr;
PFNGLWINDOWPOS3SARBPROC glWindowPos3sARB = nullptr;
PFNGLWINDOWPOS3SVARBPROC glWindowPos3svARB = nullptr;

std::int32_t is_GL_ARB_ES2_compatibility_supported = 0;
std::int32_t is_GL_ARB_ES3_1_compatibility_supported = 0;
std::int32_t is_GL_ARB_ES3_2_compatibility_supported = 0;
std::int32_t is_GL_ARB_ES3_compatibility_supported = 0;
std::int32_t is_GL_ARB_arrays_of_arrays_supported = 0;
std::int32_t is_GL_ARB_base_instance_supported = 0;
std::int32_t is_GL_ARB_bindless_texture_supported = 0;
std::int32_t is_GL_ARB_blend_func_extended_supported = 0;
std::int32_t is_GL_ARB_buffer_storage_supported = 0;
std::int32_t is_GL_ARB_cl_event_supported = 0;
std::int32_t is_GL_ARB_clear_buffer_object_supported = 0;
std::int32_t is_GL_ARB_clear_texture_supported = 0;
std::int32_t is_GL_ARB_clip_control_supported = 0;
std::int32_t is_GL_ARB_color_buffer_float_supported = 0;
std::int32_t is_GL_ARB_compatibility_supported = 0;
std::int32_t is_GL_ARB_compressed_texture_pixel_storage_supported = 0;
std::int32_t is_GL_ARB_compute_shader_supported = 0;
std::int32_t is_GL_ARB_compute_variable_group_size_supported = 0;
std::int32_t is_GL_ARB_conditional_render_inverted_supported = 0;
std::int32_t is_GL_ARB_conservative_depth_supported = 0;
std::int32_t is_GL_ARB_copy_buffer_supported = 0;
std::int32_t is_GL_ARB_copy_image_supported = 0;
std::int32_t is_GL_ARB_cull_distance_supported = 0;
std::int32_t is_GL_ARB_debug_output_supported = 0;
std::int32_t is_GL_ARB_depth_buffer_float_supported = 0;
std::int32_t is_GL_ARB_depth_clamp_supported = 0;
std::int32_t is_GL_ARB_depth_texture_supported = 0;
std::int32_t is_GL_ARB_derivative_control_supported = 0;
std::int32_t is_GL_ARB_direct_state_access_supported = 0;
std::int32_t is_GL_ARB_draw_buffers_supported = 0;
std::int32_t is_GL_ARB_draw_buffers_blend_supported = 0;
std::int32_t is_GL_ARB_draw_elements_base_vertex_supported = 0;
std::int32_t is_GL_ARB_draw_indirect_supported = 0;
std::int32_t is_GL_ARB_draw_instanced_supported = 0;
std::int32_t is_GL_ARB_enhanced_layouts_supported = 0;
std::int32_t is_GL_ARB_explicit_attrib_location_supported = 0;
std::int32_t is_GL_ARB_explicit_uniform_location_supported = 0;
std::int32_t is_GL_ARB_fragment_coord_conventions_supported = 0;
std::int32_t is_GL_ARB_fragment_layer_viewport_supported = 0;
std::int32_t is_GL_ARB_fragment_program_supported = 0;
std::int32_t is_GL_ARB_fragment_program_shadow_supported = 0;
std::int32_t is_GL_ARB_fragment_shader_supported = 0;
std::int32_t is_GL_ARB_fragment_shader_interlock_supported = 0;
std::int32_t is_GL_ARB_framebuffer_no_attachments_supported = 0;
std::int32_t is_GL_ARB_framebuffer_object_supported = 0;
std::int32_t is_GL_ARB_framebuffer_sRGB_supported = 0;
std::int32_t is_GL_ARB_geometry_shader4_supported = 0;
std::int32_t is_GL_ARB_get_program_binary_supported = 0;
std::int32_t is_GL_ARB_get_texture_sub_image_supported = 0;
std::int32_t is_GL_ARB_gl_spirv_supported = 0;
std::int32_t is_GL_ARB_gpu_shader5_supported = 0;
std::int32_t is_GL_ARB_gpu_shader_fp64_supported = 0;
std::int32_t is_GL_ARB_gpu_shader_int64_supported = 0;
std::int32_t is_GL_ARB_half_float_pixel_supported = 0;
std::int32_t is_GL_ARB_half_float_vertex_supported = 0;
std::int32_t is_GL_ARB_imaging_supported = 0;
std::int32_t is_GL_ARB_indirect_parameters_supported = 0;
std::int32_t is_GL_ARB_instanced_arrays_supported = 0;
std::int32_t is_GL_ARB_internalformat_query_supported = 0;
std::int32_t is_GL_ARB_internalformat_query2_supported = 0;
std::int32_t is_GL_ARB_invalidate_subdata_supported = 0;
std::int32_t is_GL_ARB_map_buffer_alignment_supported = 0;
std::int32_t is_GL_ARB_map_buffer_range_supported = 0;
std::int32_t is_GL_ARB_matrix_palette_supported = 0;
std::int32_t is_GL_ARB_multi_bind_supported = 0;
std::int32_t is_GL_ARB_multi_draw_indirect_supported = 0;
std::int32_t is_GL_ARB_multisample_supported = 0;
std::int32_t is_GL_ARB_multitexture_supported = 0;
std::int32_t is_GL_ARB_occlusion_query_supported = 0;
std::int32_t is_GL_ARB_occlusion_query2_supported = 0;
std::int32_t is_GL_ARB_parallel_shader_compile_supported = 0;
std::int32_t is_GL_ARB_pipeline_statistics_query_supported = 0;
std::int32_t is_GL_ARB_pixel_buffer_object_supported = 0;
std::int32_t is_GL_ARB_point_parameters_supported = 0;
std::int32_t is_GL_ARB_point_sprite_supported = 0;
std::int32_t is_GL_ARB_polygon_offset_clamp_supported = 0;
std::int32_t is_GL_ARB_post_depth_coverage_supported = 0;
std::int32_t is_GL_ARB_program_interface_query_supported = 0;
std::int32_t is_GL_ARB_provoking_vertex_supported = 0;
std::int32_t is_GL_ARB_query_buffer_object_supported = 0;
std::int32_t is_GL_ARB_robust_buffer_access_behavior_supported = 0;
std::int32_t is_GL_ARB_robustness_supported = 0;
std::int32_t is_GL_ARB_robustness_isolation_supported = 0;
std::int32_t is_GL_ARB_sample_locations_supported = 0;
std::int32_t is_GL_ARB_sample_shading_supported = 0;
std::int32_t is_GL_ARB_sampler_objects_supported = 0;
std::int32_t is_GL_ARB_seamless_cube_map_supported = 0;
std::int32_t is_GL_ARB_seamless_cubemap_per_texture_supported = 0;
std::int32_t is_GL_ARB_separate_shader_objects_supported = 0;
std::int32_t is_GL_ARB_shader_atomic_counter_ops_supported = 0;
std::int32_t is_GL_ARB_shader_atomic_counters_supported = 0;
std::int32_t is_GL_ARB_shader_ballot_supported = 0;
std::int32_t is_GL_ARB_shader_bit_encoding_supported = 0;
std::int32_t is_GL_ARB_shader_clock_supported = 0;
std::int32_t is_GL_ARB_shader_draw_parameters_supported = 0;
std::int32_t is_GL_ARB_shader_group_vote_supported = 0;
std::int32_t is_GL_ARB_shader_image_load_store_supported = 0;
std::int32_t is_GL_ARB_shader_image_size_supported = 0;
std::int32_t is_GL_ARB_shader_objects_supported = 0;
std::int32_t is_GL_ARB_shader_precision_supported = 0;
std::int32_t is_GL_ARB_shader_stencil_export_supported = 0;
std::int32_t is_GL_ARB_shader_storage_buffer_object_supported = 0;
std::int32_t is_GL_ARB_shader_subroutine_supported = 0;
std::int32_t is_GL_ARB_shader_texture_image_samples_supported = 0;
std::int32_t is_GL_ARB_shader_texture_lod_supported = 0;
std::int32_t is_GL_ARB_shader_viewport_layer_array_supported = 0;
std::int32_t is_GL_ARB_shading_language_100_supported = 0;
std::int32_t is_GL_ARB_shading_language_420pack_supported = 0;
std::int32_t is_GL_ARB_shading_language_include_supported = 0;
std::int32_t is_GL_ARB_shading_language_packing_supported = 0;
std::int32_t is_GL_ARB_shadow_supported = 0;
std::int32_t is_GL_ARB_shadow_ambient_supported = 0;
std::int32_t is_GL_ARB_sparse_buffer_supported = 0;
std::int32_t is_GL_ARB_sparse_texture_supported = 0;
std::int32_t is_GL_ARB_sparse_texture2_supported = 0;
std::int32_t is_GL_ARB_sparse_texture_clamp_supported = 0;
std::int32_t is_GL_ARB_spirv_extensions_supported = 0;
std::int32_t is_GL_ARB_stencil_texturing_supported = 0;
std::int32_t is_GL_ARB_sync_supported = 0;
std::int32_t is_GL_ARB_tessellation_shader_supported = 0;
std::int32_t is_GL_ARB_texture_barrier_supported = 0;
std::int32_t is_GL_ARB_texture_border_clamp_supported = 0;
std::int32_t is_GL_ARB_texture_buffer_object_supported = 0;
std::int32_t is_GL_ARB_texture_buffer_object_rgb32_supported = 0;
std::int32_t is_GL_ARB_texture_buffer_range_supported = 0;
std::int32_t is_GL_ARB_texture_compression_supported = 0;
std::int32_t is_GL_ARB_texture_compression_bptc_supported = 0;
std::int32_t is_GL_ARB_texture_compression_rgtc_supported = 0;
std::int32_t is_GL_ARB_texture_cube_map_supported = 0;
std::int32_t is_GL_ARB_texture_cube_map_array_supported = 0;
std::int32_t is_GL_ARB_texture_env_add_supported = 0;
std::int32_t is_GL_ARB_texture_env_combine_supported = 0;
std::int32_t is_GL_ARB_texture_env_crossbar_supported = 0;
std::int32_t is_GL_ARB_texture_env_dot3_supported = 0;
std::int32_t is_GL_ARB_texture_filter_anisotropic_supported = 0;
std::int32_t is_GL_ARB_texture_filter_minmax_supported = 0;
std::int32_t is_GL_ARB_texture_float_supported = 0;
std::int32_t is_GL_ARB_texture_gather_supported = 0;
std::int32_t is_GL_ARB_texture_mirror_clamp_to_edge_supported = 0;
std::int32_t is_GL_ARB_texture_mirrored_repeat_supported = 0;
std::int32_t is_GL_ARB_texture_multisample_supported = 0;
std::int32_t is_GL_ARB_texture_non_power_of_two_supported = 0;
std::int32_t is_GL_ARB_texture_query_levels_supported = 0;
std::int32_t is_GL_ARB_texture_query_lod_supported = 0;
std::int32_t is_GL_ARB_texture_rectangle_supported = 0;
std::int32_t is_GL_ARB_texture_rg_supported = 0;
std::int32_t is_GL_ARB_texture_rgb10_a2ui_supported = 0;
std::int32_t is_GL_ARB_texture_stencil8_supported = 0;
std::int32_t is_GL_ARB_texture_storage_supported = 0;
std::int32_t is_GL_ARB_texture_storage_multisample_supported = 0;
std::int32_t is_GL_ARB_texture_swizzle_supported = 0;
std::int32_t is_GL_ARB_texture_view_supported = 0;
std::int32_t is_GL_ARB_timer_query_supported = 0;
std::int32_t is_GL_ARB_transform_feedback2_supported = 0;
std::int32_t is_GL_ARB_transform_feedback3_supported = 0;
std::int32_t is_GL_ARB_transform_feedback_instanced_supported = 0;
std::int32_t is_GL_ARB_transform_feedback_overflow_query_supported = 0;
std::int32_t is_GL_ARB_transpose_matrix_supported = 0;
std::int32_t is_GL_ARB_uniform_buffer_object_supported = 0;
std::int32_t is_GL_ARB_vertex_array_bgra_supported = 0;
std::int32_t is_GL_ARB_vertex_array_object_supported = 0;
std::int32_t is_GL_ARB_vertex_attrib_64bit_supported = 0;
std::int32_t is_GL_ARB_vertex_attrib_binding_supported = 0;
std::int32_t is_GL_ARB_vertex_blend_supported = 0;
std::int32_t is_GL_ARB_vertex_buffer_object_supported = 0;
std::int32_t is_GL_ARB_vertex_program_supported = 0;
std::int32_t is_GL_ARB_vertex_shader_supported = 0;
std::int32_t is_GL_ARB_vertex_type_10f_11f_11f_rev_supported = 0;
std::int32_t is_GL_ARB_vertex_type_2_10_10_10_rev_supported = 0;
std::int32_t is_GL_ARB_viewport_array_supported = 0;
std::int32_t is_GL_ARB_window_pos_supported = 0;

void init_GL_ARB_ES2_compatibility() {}

void init_GL_ARB_ES3_1_compatibility() {}

void init_GL_ARB_ES3_2_compatibility() {
    glPrimitiveBoundingBoxARB = reinterpret_cast<PFNGLPRIMITIVEBOUNDINGBOXARBPROC>(__gl_GetProcAddress("glPrimitiveBoundingBoxARB"));
}

void init_GL_ARB_ES3_compatibility() {}

void init_GL_ARB_arrays_of_arrays() {}

void init_GL_ARB_base_instance() {}

void init_GL_ARB_bindless_texture() {
    glGetTextureHandleARB = reinterpret_cast<PFNGLGETTEXTUREHANDLEARBPROC>(__gl_GetProcAddress("glGetTextureHandleARB"));
    glGetTextureSamplerHandleARB = reinterpret_cast<PFNGLGETTEXTURESAMPLERHANDLEARBPROC>(__gl_GetProcAddress("glGetTextureSamplerHandleARB"));
    glMakeTextureHandleResidentARB = reinterpret_cast<PFNGLMAKETEXTUREHANDLERESIDENTARBPROC>(__gl_GetProcAddress("glMakeTextureHandleResidentARB"));
    glMakeTextureHandleNonResidentARB = reinterpret_cast<PFNGLMAKETEXTUREHANDLENONRESIDENTARBPROC>(__gl_GetProcAddress("glMakeTextureHandleNonResidentARB"));
    glGetImageHandleARB = reinterpret_cast<PFNGLGETIMAGEHANDLEARBPROC>(__gl_GetProcAddress("glGetImageHandleARB"));
    glMakeImageHandleResidentARB = reinterpret_cast<PFNGLMAKEIMAGEHANDLERESIDENTARBPROC>(__gl_GetProcAddress("glMakeImageHandleResidentARB"));
    glMakeImageHandleNonResidentARB = reinterpret_cast<PFNGLMAKEIMAGEHANDLENONRESIDENTARBPROC>(__gl_GetProcAddress("glMakeImageHandleNonResidentARB"));
    glUniformHandleui64ARB = reinterpret_cast<PFNGLUNIFORMHANDLEUI64ARBPROC>(__gl_GetProcAddress("glUniformHandleui64ARB"));
    glUniformHandleui64vARB = reinterpret_cast<PFNGLUNIFORMHANDLEUI64VARBPROC>(__gl_GetProcAddress("glUniformHandleui64vARB"));
    glProgramUniformHandleui64ARB = reinterpret_cast<PFNGLPROGRAMUNIFORMHANDLEUI64ARBPROC>(__gl_GetProcAddress("glProgramUniformHandleui64ARB"));
    glProgramUniformHandleui64vARB = reinterpret_cast<PFNGLPROGRAMUNIFORMHANDLEUI64VARBPROC>(__gl_GetProcAddress("glProgramUniformHandleui64vARB"));
    glIsTextureHandleResidentARB = reinterpret_cast<PFNGLISTEXTUREHANDLERESIDENTARBPROC>(__gl_GetProcAddress("glIsTextureHandleResidentARB"));
    glIsImageHandleResidentARB = reinterpret_cast<PFNGLISIMAGEHANDLERESIDENTARBPROC>(__gl_GetProcAddress("glIsImageHandleResidentARB"));
    glVertexAttribL1ui64ARB = reinterpret_cast<PFNGLVERTEXATTRIBL1UI64ARBPROC>(__gl_GetProcAddress("glVertexAttribL1ui64ARB"));
    glVertexAttribL1ui64vARB = reinterpret_cast<PFNGLVERTEXATTRIBL1UI64VARBPROC>(__gl_GetProcAddress("glVertexAttribL1ui64vARB"));
    glGetVertexAttribLui64vARB = reinterpret_cast<PFNGLGETVERTEXATTRIBLUI64VARBPROC>(__gl_GetProcAddress("glGetVertexAttribLui64vARB"));
}

void init_GL_ARB_blend_func_extended() {}

void init_GL_ARB_buffer_storage() {}

void init_GL_ARB_cl_event() {
    glCreateSyncFromCLeventARB = reinterpret_cast<PFNGLCREATESYNCFROMCLEVENTARBPROC>(__gl_GetProcAddress("glCreateSyncFromCLeventARB"));
}

void init_GL_ARB_clear_buffer_object() {}

void init_GL_ARB_clear_texture() {}

void init_GL_ARB_clip_control() {}

void init_GL_ARB_color_buffer_float() {
    glClampColorARB = reinterpret_cast<PFNGLCLAMPCOLORARBPROC>(__gl_GetProcAddress("glClampColorARB"));
}

void init_GL_ARB_compatibility() {}

void init_GL_ARB_compressed_texture_pixel_storage() {}

void init_GL_ARB_compute_shader() {}

void init_GL_ARB_compute_variable_group_size() {
    glDispatchComputeGroupSizeARB = reinterpret_cast<PFNGLDISPATCHCOMPUTEGROUPSIZEARBPROC>(__gl_GetProcAddress("glDispatchComputeGroupSizeARB"));
}

void init_GL_ARB_conditional_render_inverted() {}

void init_GL_ARB_conservative_depth() {}

void init_GL_ARB_copy_buffer() {}

void init_GL_ARB_copy_image() {}

void init_GL_ARB_cull_distance() {}

void init_GL_ARB_debug_output() {
    glDebugMessageControlARB = reinterpret_cast<PFNGLDEBUGMESSAGECONTROLARBPROC>(__gl_GetProcAddress("glDebugMessageControlARB"));
    glDebugMessageInsertARB = reinterpret_cast<PFNGLDEBUGMESSAGEINSERTARBPROC>(__gl_GetProcAddress("glDebugMessageInsertARB"));
    glDebugMessageCallbackARB = reinterpret_cast<PFNGLDEBUGMESSAGECALLBACKARBPROC>(__gl_GetProcAddress("glDebugMessageCallbackARB"));
    glGetDebugMessageLogARB = reinterpret_cast<PFNGLGETDEBUGMESSAGELOGARBPROC>(__gl_GetProcAddress("glGetDebugMessageLogARB"));
}

void init_GL_ARB_depth_buffer_float() {}

void init_GL_ARB_depth_clamp() {}

void init_GL_ARB_depth_texture() {}

void init_GL_ARB_derivative_control() {}

void init_GL_ARB_direct_state_access() {}

void init_GL_ARB_draw_buffers() {
    glDrawBuffersARB = reinterpret_cast<PFNGLDRAWBUFFERSARBPROC>(__gl_GetProcAddress("glDrawBuffersARB"));
}

void init_GL_ARB_draw_buffers_blend() {
    glBlendEquationiARB = reinterpret_cast<PFNGLBLENDEQUATIONIARBPROC>(__gl_GetProcAddress("glBlendEquationiARB"));
    glBlendEquationSeparateiARB = reinterpret_cast<PFNGLBLENDEQUATIONSEPARATEIARBPROC>(__gl_GetProcAddress("glBlendEquationSeparateiARB"));
    glBlendFunciARB = reinterpret_cast<PFNGLBLENDFUNCIARBPROC>(__gl_GetProcAddress("glBlendFunciARB"));
    glBlendFuncSeparateiARB = reinterpret_cast<PFNGLBLENDFUNCSEPARATEIARBPROC>(__gl_GetProcAddress("glBlendFuncSeparateiARB"));
}

void init_GL_ARB_draw_elements_base_vertex() {}

void init_GL_ARB_draw_indirect() {}

void init_GL_ARB_draw_instanced() {
    glDrawArraysInstancedARB = reinterpret_cast<PFNGLDRAWARRAYSINSTANCEDARBPROC>(__gl_GetProcAddress("glDrawArraysInstancedARB"));
    glDrawElementsInstancedARB = reinterpret_cast<PFNGLDRAWELEMENTSINSTANCEDARBPROC>(__gl_GetProcAddress("glDrawElementsInstancedARB"));
}

void init_GL_ARB_enhanced_layouts() {}

void init_GL_ARB_explicit_attrib_location() {}

void init_GL_ARB_explicit_uniform_location() {}

void init_GL_ARB_fragment_coord_conventions() {}

void init_GL_ARB_fragment_layer_viewport() {}

void init_GL_ARB_fragment_program() {
    glProgramStringARB = reinterpret_cast<PFNGLPROGRAMSTRINGARBPROC>(__gl_GetProcAddress("glProgramStringARB"));
    glBindProgramARB = reinterpret_cast<PFNGLBINDPROGRAMARBPROC>(__gl_GetProcAddress("glBindProgramARB"));
    glDeleteProgramsARB = reinterpret_cast<PFNGLDELETEPROGRAMSARBPROC>(__gl_GetProcAddress("glDeleteProgramsARB"));
    glGenProgramsARB = reinterpret_cast<PFNGLGENPROGRAMSARBPROC>(__gl_GetProcAddress("glGenProgramsARB"));
    glProgramEnvParameter4dARB = reinterpret_cast<PFNGLPROGRAMENVPARAMETER4DARBPROC>(__gl_GetProcAddress("glProgramEnvParameter4dARB"));
    glProgramEnvParameter4dvARB = reinterpret_cast<PFNGLPROGRAMENVPARAMETER4DVARBPROC>(__gl_GetProcAddress("glProgramEnvParameter4dvARB"));
    glProgramEnvParameter4fARB = reinterpret_cast<PFNGLPROGRAMENVPARAMETER4FARBPROC>(__gl_GetProcAddress("glProgramEnvParameter4fARB"));
    glProgramEnvParameter4fvARB = reinterpret_cast<PFNGLPROGRAMENVPARAMETER4FVARBPROC>(__gl_GetProcAddress("glProgramEnvParameter4fvARB"));
    glProgramLocalParameter4dARB = reinterpret_cast<PFNGLPROGRAMLOCALPARAMETER4DARBPROC>(__gl_GetProcAddress("glProgramLocalParameter4dARB"));
    glProgramLocalParameter4dvARB = reinterpret_cast<PFNGLPROGRAMLOCALPARAMETER4DVARBPROC>(__gl_GetProcAddress("glProgramLocalParameter4dvARB"));
    glProgramLocalParameter4fARB = reinterpret_cast<PFNGLPROGRAMLOCALPARAMETER4FARBPROC>(__gl_GetProcAddress("glProgramLocalParameter4fARB"));
    glProgramLocalParameter4fvARB = reinterpret_cast<PFNGLPROGRAMLOCALPARAMETER4FVARBPROC>(__gl_GetProcAddress("glProgramLocalParameter4fvARB"));
    glGetProgramEnvParameterdvARB = reinterpret_cast<PFNGLGETPROGRAMENVPARAMETERDVARBPROC>(__gl_GetProcAddress("glGetProgramEnvParameterdvARB"));
    glGetProgramEnvParameterfvARB = reinterpret_cast<PFNGLGETPROGRAMENVPARAMETERFVARBPROC>(__gl_GetProcAddress("glGetProgramEnvParameterfvARB"));
    glGetProgramLocalParameterdvARB = reinterpret_cast<PFNGLGETPROGRAMLOCALPARAMETERDVARBPROC>(__gl_GetProcAddress("glGetProgramLocalParameterdvARB"));
    glGetProgramLocalParameterfvARB = reinterpret_cast<PFNGLGETPROGRAMLOCALPARAMETERFVARBPROC>(__gl_GetProcAddress("glGetProgramLocalParameterfvARB"));
    glGetProgramivARB = reinterpret_cast<PFNGLGETPROGRAMIVARBPROC>(__gl_GetProcAddress("glGetProgramivARB"));
    glGetProgramStringARB = reinterpret_cast<PFNGLGETPROGRAMSTRINGARBPROC>(__gl_GetProcAddress("glGetProgramStringARB"));
    glIsProgramARB = reinterpret_cast<PFNGLISPROGRAMARBPROC>(__gl_GetProcAddress("glIsProgramARB"));
}

void init_GL_ARB_fragment_program_shadow() {}

void init_GL_ARB_fragment_shader() {}

void init_GL_ARB_fragment_shader_interlock() {}

void init_GL_ARB_framebuffer_no_attachments() {}

void init_GL_ARB_framebuffer_object() {}

void init_GL_ARB_framebuffer_sRGB() {}

void init_GL_ARB_geometry_shader4() {
    glProgramParameteriARB = reinterpret_cast<PFNGLPROGRAMPARAMETERIARBPROC>(__gl_GetProcAddress("glProgramParameteriARB"));
    glFramebufferTextureARB = reinterpret_cast<PFNGLFRAMEBUFFERTEXTUREARBPROC>(__gl_GetProcAddress("glFramebufferTextureARB"));
    glFramebufferTextureLayerARB = reinterpret_cast<PFNGLFRAMEBUFFERTEXTURELAYERARBPROC>(__gl_GetProcAddress("glFramebufferTextureLayerARB"));
    glFramebufferTextureFaceARB = reinterpret_cast<PFNGLFRAMEBUFFERTEXTUREFACEARBPROC>(__gl_GetProcAddress("glFramebufferTextureFaceARB"));
}

void init_GL_ARB_get_program_binary() {}

void init_GL_ARB_get_texture_sub_image() {}

void init_GL_ARB_gl_spirv() {
    glSpecializeShaderARB = reinterpret_cast<PFNGLSPECIALIZESHADERARBPROC>(__gl_GetProcAddress("glSpecializeShaderARB"));
}

void init_GL_ARB_gpu_shader5() {}

void init_GL_ARB_gpu_shader_fp64() {}

void init_GL_ARB_gpu_shader_int64() {
    glUniform1i64ARB = reinterpret_cast<PFNGLUNIFORM1I64ARBPROC>(__gl_GetProcAddress("glUniform1i64ARB"));
    glUniform2i64ARB = reinterpret_cast<PFNGLUNIFORM2I64ARBPROC>(__gl_GetProcAddress("glUniform2i64ARB"));
    glUniform3i64ARB = reinterpret_cast<PFNGLUNIFORM3I64ARBPROC>(__gl_GetProcAddress("glUniform3i64ARB"));
    glUniform4i64ARB = reinterpret_cast<PFNGLUNIFORM4I64ARBPROC>(__gl_GetProcAddress("glUniform4i64ARB"));
    glUniform1i64vARB = reinterpret_cast<PFNGLUNIFORM1I64VARBPROC>(__gl_GetProcAddress("glUniform1i64vARB"));
    glUniform2i64vARB = reinterpret_cast<PFNGLUNIFORM2I64VARBPROC>(__gl_GetProcAddress("glUniform2i64vARB"));
    glUniform3i64vARB = reinterpret_cast<PFNGLUNIFORM3I64VARBPROC>(__gl_GetProcAddress("glUniform3i64vARB"));
    glUniform4i64vARB = reinterpret_cast<PFNGLUNIFORM4I64VARBPROC>(__gl_GetProcAddress("glUniform4i64vARB"));
    glUniform1ui64ARB = reinterpret_cast<PFNGLUNIFORM1UI64ARBPROC>(__gl_GetProcAddress("glUniform1ui64ARB"));
    glUniform2ui64ARB = reinterpret_cast<PFNGLUNIFORM2UI64ARBPROC>(__gl_GetProcAddress("glUniform2ui64ARB"));
    glUniform3ui64ARB = reinterpret_cast<PFNGLUNIFORM3UI64ARBPROC>(__gl_GetProcAddress("glUniform3ui64ARB"));
    glUniform4ui64ARB = reinterpret_cast<PFNGLUNIFORM4UI64ARBPROC>(__gl_GetProcAddress("glUniform4ui64ARB"));
    glUniform1ui64vARB = reinterpret_cast<PFNGLUNIFORM1UI64VARBPROC>(__gl_GetProcAddress("glUniform1ui64vARB"));
    glUniform2ui64vARB = reinterpret_cast<PFNGLUNIFORM2UI64VARBPROC>(__gl_GetProcAddress("glUniform2ui64vARB"));
    glUniform3ui64vARB = reinterpret_cast<PFNGLUNIFORM3UI64VARBPROC>(__gl_GetProcAddress("glUniform3ui64vARB"));
    glUniform4ui64vARB = reinterpret_cast<PFNGLUNIFORM4UI64VARBPROC>(__gl_GetProcAddress("glUniform4ui64vARB"));
    glGetUniformi64vARB = reinterpret_cast<PFNGLGETUNIFORMI64VARBPROC>(__gl_GetProcAddress("glGetUniformi64vARB"));
    glGetUniformui64vARB = reinterpret_cast<PFNGLGETUNIFORMUI64VARBPROC>(__gl_GetProcAddress("glGetUniformui64vARB"));
    glGetnUniformi64vARB = reinterpret_cast<PFNGLGETNUNIFORMI64VARBPROC>(__gl_GetProcAddress("glGetnUniformi64vARB"));
    glGetnUniformui64vARB = reinterpret_cast<PFNGLGETNUNIFORMUI64VARBPROC>(__gl_GetProcAddress("glGetnUniformui64vARB"));
    glProgramUniform1i64ARB = reinterpret_cast<PFNGLPROGRAMUNIFORM1I64ARBPROC>(__gl_GetProcAddress("glProgramUniform1i64ARB"));
    glProgramUniform2i64ARB = reinterpret_cast<PFNGLPROGRAMUNIFORM2I64ARBPROC>(__gl_GetProcAddress("glProgramUniform2i64ARB"));
    glProgramUniform3i64ARB = reinterpret_cast<PFNGLPROGRAMUNIFORM3I64ARBPROC>(__gl_GetProcAddress("glProgramUniform3i64ARB"));
    glProgramUniform4i64ARB = reinterpret_cast<PFNGLPROGRAMUNIFORM4I64ARBPROC>(__gl_GetProcAddress("glProgramUniform4i64ARB"));
    glProgramUniform1i64vARB = reinterpret_cast<PFNGLPROGRAMUNIFORM1I64VARBPROC>(__gl_GetProcAddress("glProgramUniform1i64vARB"));
    glProgramUniform2i64vARB = reinterpret_cast<PFNGLPROGRAMUNIFORM2I64VARBPROC>(__gl_GetProcAddress("glProgramUniform2i64vARB"));
    glProgramUniform3i64vARB = reinterpret_cast<PFNGLPROGRAMUNIFORM3I64VARBPROC>(__gl_GetProcAddress("glProgramUniform3i64vARB"));
    glProgramUniform4i64vARB = reinterpret_cast<PFNGLPROGRAMUNIFORM4I64VARBPROC>(__gl_GetProcAddress("glProgramUniform4i64vARB"));
    glProgramUniform1ui64ARB = reinterpret_cast<PFNGLPROGRAMUNIFORM1UI64ARBPROC>(__gl_GetProcAddress("glProgramUniform1ui64ARB"));
    glProgramUniform2ui64ARB = reinterpret_cast<PFNGLPROGRAMUNIFORM2UI64ARBPROC>(__gl_GetProcAddress("glProgramUniform2ui64ARB"));
    glProgramUniform3ui64ARB = reinterpret_cast<PFNGLPROGRAMUNIFORM3UI64ARBPROC>(__gl_GetProcAddress("glProgramUniform3ui64ARB"));
    glProgramUniform4ui64ARB = reinterpret_cast<PFNGLPROGRAMUNIFORM4UI64ARBPROC>(__gl_GetProcAddress("glProgramUniform4ui64ARB"));
    glProgramUniform1ui64vARB = reinterpret_cast<PFNGLPROGRAMUNIFORM1UI64VARBPROC>(__gl_GetProcAddress("glProgramUniform1ui64vARB"));
    glProgramUniform2ui64vARB = reinterpret_cast<PFNGLPROGRAMUNIFORM2UI64VARBPROC>(__gl_GetProcAddress("glProgramUniform2ui64vARB"));
    glProgramUniform3ui64vARB = reinterpret_cast<PFNGLPROGRAMUNIFORM3UI64VARBPROC>(__gl_GetProcAddress("glProgramUniform3ui64vARB"));
    glProgramUniform4ui64vARB = reinterpret_cast<PFNGLPROGRAMUNIFORM4UI64VARBPROC>(__gl_GetProcAddress("glProgramUniform4ui64vARB"));
}

void init_GL_ARB_half_float_pixel() {}

void init_GL_ARB_half_float_vertex() {}

void init_GL_ARB_imaging() {
    glColorTable = reinterpret_cast<PFNGLCOLORTABLEPROC>(__gl_GetProcAddress("glColorTable"));
    glColorTableParameterfv = reinterpret_cast<PFNGLCOLORTABLEPARAMETERFVPROC>(__gl_GetProcAddress("glColorTableParameterfv"));
    glColorTableParameteriv = reinterpret_cast<PFNGLCOLORTABLEPARAMETERIVPROC>(__gl_GetProcAddress("glColorTableParameteriv"));
    glCopyColorTable = reinterpret_cast<PFNGLCOPYCOLORTABLEPROC>(__gl_GetProcAddress("glCopyColorTable"));
    glGetColorTable = reinterpret_cast<PFNGLGETCOLORTABLEPROC>(__gl_GetProcAddress("glGetColorTable"));
    glGetColorTableParameterfv = reinterpret_cast<PFNGLGETCOLORTABLEPARAMETERFVPROC>(__gl_GetProcAddress("glGetColorTableParameterfv"));
    glGetColorTableParameteriv = reinterpret_cast<PFNGLGETCOLORTABLEPARAMETERIVPROC>(__gl_GetProcAddress("glGetColorTableParameteriv"));
    glColorSubTable = reinterpret_cast<PFNGLCOLORSUBTABLEPROC>(__gl_GetProcAddress("glColorSubTable"));
    glCopyColorSubTable = reinterpret_cast<PFNGLCOPYCOLORSUBTABLEPROC>(__gl_GetProcAddress("glCopyColorSubTable"));
    glConvolutionFilter1D = reinterpret_cast<PFNGLCONVOLUTIONFILTER1DPROC>(__gl_GetProcAddress("glConvolutionFilter1D"));
    glConvolutionFilter2D = reinterpret_cast<PFNGLCONVOLUTIONFILTER2DPROC>(__gl_GetProcAddress("glConvolutionFilter2D"));
    glConvolutionParameterf = reinterpret_cast<PFNGLCONVOLUTIONPARAMETERFPROC>(__gl_GetProcAddress("glConvolutionParameterf"));
    glConvolutionParameterfv = reinterpret_cast<PFNGLCONVOLUTIONPARAMETERFVPROC>(__gl_GetProcAddress("glConvolutionParameterfv"));
    glConvolutionParameteri = reinterpret_cast<PFNGLCONVOLUTIONPARAMETERIPROC>(__gl_GetProcAddress("glConvolutionParameteri"));
    glConvolutionParameteriv = reinterpret_cast<PFNGLCONVOLUTIONPARAMETERIVPROC>(__gl_GetProcAddress("glConvolutionParameteriv"));
    glCopyConvolutionFilter1D = reinterpret_cast<PFNGLCOPYCONVOLUTIONFILTER1DPROC>(__gl_GetProcAddress("glCopyConvolutionFilter1D"));
    glCopyConvolutionFilter2D = reinterpret_cast<PFNGLCOPYCONVOLUTIONFILTER2DPROC>(__gl_GetProcAddress("glCopyConvolutionFilter2D"));
    glGetConvolutionFilter = reinterpret_cast<PFNGLGETCONVOLUTIONFILTERPROC>(__gl_GetProcAddress("glGetConvolutionFilter"));
    glGetConvolutionParameterfv = reinterpret_cast<PFNGLGETCONVOLUTIONPARAMETERFVPROC>(__gl_GetProcAddress("glGetConvolutionParameterfv"));
    glGetConvolutionParameteriv = reinterpret_cast<PFNGLGETCONVOLUTIONPARAMETERIVPROC>(__gl_GetProcAddress("glGetConvolutionParameteriv"));
    glGetSeparableFilter = reinterpret_cast<PFNGLGETSEPARABLEFILTERPROC>(__gl_GetProcAddress("glGetSeparableFilter"));
    glSeparableFilter2D = reinterpret_cast<PFNGLSEPARABLEFILTER2DPROC>(__gl_GetProcAddress("glSeparableFilter2D"));
    glGetHistogram = reinterpret_cast<PFNGLGETHISTOGRAMPROC>(__gl_GetProcAddress("glGetHistogram"));
    glGetHistogramParameterfv = reinterpret_cast<PFNGLGETHISTOGRAMPARAMETERFVPROC>(__gl_GetProcAddress("glGetHistogramParameterfv"));
    glGetHistogramParameteriv = reinterpret_cast<PFNGLGETHISTOGRAMPARAMETERIVPROC>(__gl_GetProcAddress("glGetHistogramParameteriv"));
    glGetMinmax = reinterpret_cast<PFNGLGETMINMAXPROC>(__gl_GetProcAddress("glGetMinmax"));
    glGetMinmaxParameterfv = reinterpret_cast<PFNGLGETMINMAXPARAMETERFVPROC>(__gl_GetProcAddress("glGetMinmaxParameterfv"));
    glGetMinmaxParameteriv = reinterpret_cast<PFNGLGETMINMAXPARAMETERIVPROC>(__gl_GetProcAddress("glGetMinmaxParameteriv"));
    glHistogram = reinterpret_cast<PFNGLHISTOGRAMPROC>(__gl_GetProcAddress("glHistogram"));
    glMinmax = reinterpret_cast<PFNGLMINMAXPROC>(__gl_GetProcAddress("glMinmax"));
    glResetHistogram = reinterpret_cast<PFNGLRESETHISTOGRAMPROC>(__gl_GetProcAddress("glResetHistogram"));
    glResetMinmax = reinterpret_cast<PFNGLRESETMINMAXPROC>(__gl_GetProcAddress("glResetMinmax"));
}

void init_GL_ARB_indirect_parameters() {
    glMultiDrawArraysIndirectCountARB = reinterpret_cast<PFNGLMULTIDRAWARRAYSINDIRECTCOUNTARBPROC>(__gl_GetProcAddress("glMultiDrawArraysIndirectCountARB"));
    glMultiDrawElementsIndirectCountARB = reinterpret_cast<PFNGLMULTIDRAWELEMENTSINDIRECTCOUNTARBPROC>(__gl_GetProcAddress("glMultiDrawElementsIndirectCountARB"));
}

void init_GL_ARB_instanced_arrays() {
    glVertexAttribDivisorARB = reinterpret_cast<PFNGLVERTEXATTRIBDIVISORARBPROC>(__gl_GetProcAddress("glVertexAttribDivisorARB"));
}

void init_GL_ARB_internalformat_query() {}

void init_GL_ARB_internalformat_query2() {}

void init_GL_ARB_invalidate_subdata() {}

void init_GL_ARB_map_buffer_alignment() {}

void init_GL_ARB_map_buffer_range() {}

void init_GL_ARB_matrix_palette() {
    glCurrentPaletteMatrixARB = reinterpret_cast<PFNGLCURRENTPALETTEMATRIXARBPROC>(__gl_GetProcAddress("glCurrentPaletteMatrixARB"));
    glMatrixIndexubvARB = reinterpret_cast<PFNGLMATRIXINDEXUBVARBPROC>(__gl_GetProcAddress("glMatrixIndexubvARB"));
    glMatrixIndexusvARB = reinterpret_cast<PFNGLMATRIXINDEXUSVARBPROC>(__gl_GetProcAddress("glMatrixIndexusvARB"));
    glMatrixIndexuivARB = reinterpret_cast<PFNGLMATRIXINDEXUIVARBPROC>(__gl_GetProcAddress("glMatrixIndexuivARB"));
    glMatrixIndexPointerARB = reinterpret_cast<PFNGLMATRIXINDEXPOINTERARBPROC>(__gl_GetProcAddress("glMatrixIndexPointerARB"));
}

void init_GL_ARB_multi_bind() {}

void init_GL_ARB_multi_draw_indirect() {}

void init_GL_ARB_multisample() {
    glSampleCoverageARB = reinterpret_cast<PFNGLSAMPLECOVERAGEARBPROC>(__gl_GetProcAddress("glSampleCoverageARB"));
}

void init_GL_ARB_multitexture() {
    glActiveTextureARB = reinterpret_cast<PFNGLACTIVETEXTUREARBPROC>(__gl_GetProcAddress("glActiveTextureARB"));
    glClientActiveTextureARB = reinterpret_cast<PFNGLCLIENTACTIVETEXTUREARBPROC>(__gl_GetProcAddress("glClientActiveTextureARB"));
    glMultiTexCoord1dARB = reinterpret_cast<PFNGLMULTITEXCOORD1DARBPROC>(__gl_GetProcAddress("glMultiTexCoord1dARB"));
    glMultiTexCoord1dvARB = reinterpret_cast<PFNGLMULTITEXCOORD1DVARBPROC>(__gl_GetProcAddress("glMultiTexCoord1dvARB"));
    glMultiTexCoord1fARB = reinterpret_cast<PFNGLMULTITEXCOORD1FARBPROC>(__gl_GetProcAddress("glMultiTexCoord1fARB"));
    glMultiTexCoord1fvARB = reinterpret_cast<PFNGLMULTITEXCOORD1FVARBPROC>(__gl_GetProcAddress("glMultiTexCoord1fvARB"));
    glMultiTexCoord1iARB = reinterpret_cast<PFNGLMULTITEXCOORD1IARBPROC>(__gl_GetProcAddress("glMultiTexCoord1iARB"));
    glMultiTexCoord1ivARB = reinterpret_cast<PFNGLMULTITEXCOORD1IVARBPROC>(__gl_GetProcAddress("glMultiTexCoord1ivARB"));
    glMultiTexCoord1sARB = reinterpret_cast<PFNGLMULTITEXCOORD1SARBPROC>(__gl_GetProcAddress("glMultiTexCoord1sARB"));
    glMultiTexCoord1svARB = reinterpret_cast<PFNGLMULTITEXCOORD1SVARBPROC>(__gl_GetProcAddress("glMultiTexCoord1svARB"));
    glMultiTexCoord2dARB = reinterpret_cast<PFNGLMULTITEXCOORD2DARBPROC>(__gl_GetProcAddress("glMultiTexCoord2dARB"));
    glMultiTexCoord2dvARB = reinterpret_cast<PFNGLMULTITEXCOORD2DVARBPROC>(__gl_GetProcAddress("glMultiTexCoord2dvARB"));
    glMultiTexCoord2fARB = reinterpret_cast<PFNGLMULTITEXCOORD2FARBPROC>(__gl_GetProcAddress("glMultiTexCoord2fARB"));
    glMultiTexCoord2fvARB = reinterpret_cast<PFNGLMULTITEXCOORD2FVARBPROC>(__gl_GetProcAddress("glMultiTexCoord2fvARB"));
    glMultiTexCoord2iARB = reinterpret_cast<PFNGLMULTITEXCOORD2IARBPROC>(__gl_GetProcAddress("glMultiTexCoord2iARB"));
    glMultiTexCoord2ivARB = reinterpret_cast<PFNGLMULTITEXCOORD2IVARBPROC>(__gl_GetProcAddress("glMultiTexCoord2ivARB"));
    glMultiTexCoord2sARB = reinterpret_cast<PFNGLMULTITEXCOORD2SARBPROC>(__gl_GetProcAddress("glMultiTexCoord2sARB"));
    glMultiTexCoord2svARB = reinterpret_cast<PFNGLMULTITEXCOORD2SVARBPROC>(__gl_GetProcAddress("glMultiTexCoord2svARB"));
    glMultiTexCoord3dARB = reinterpret_cast<PFNGLMULTITEXCOORD3DARBPROC>(__gl_GetProcAddress("glMultiTexCoord3dARB"));
    glMultiTexCoord3dvARB = reinterpret_cast<PFNGLMULTITEXCOORD3DVARBPROC>(__gl_GetProcAddress("glMultiTexCoord3dvARB"));
    glMultiTexCoord3fARB = reinterpret_cast<PFNGLMULTITEXCOORD3FARBPROC>(__gl_GetProcAddress("glMultiTexCoord3fARB"));
    glMultiTexCoord3fvARB = reinterpret_cast<PFNGLMULTITEXCOORD3FVARBPROC>(__gl_GetProcAddress("glMultiTexCoord3fvARB"));
    glMultiTexCoord3iARB = reinterpret_cast<PFNGLMULTITEXCOORD3IARBPROC>(__gl_GetProcAddress("glMultiTexCoord3iARB"));
    glMultiTexCoord3ivARB = reinterpret_cast<PFNGLMULTITEXCOORD3IVARBPROC>(__gl_GetProcAddress("glMultiTexCoord3ivARB"));
    glMultiTexCoord3sARB = reinterpret_cast<PFNGLMULTITEXCOORD3SARBPROC>(__gl_GetProcAddress("glMultiTexCoord3sARB"));
    glMultiTexCoord3svARB = reinterpret_cast<PFNGLMULTITEXCOORD3SVARBPROC>(__gl_GetProcAddress("glMultiTexCoord3svARB"));
    glMultiTexCoord4dARB = reinterpret_cast<PFNGLMULTITEXCOORD4DARBPROC>(__gl_GetProcAddress("glMultiTexCoord4dARB"));
    glMultiTexCoord4dvARB = reinterpret_cast<PFNGLMULTITEXCOORD4DVARBPROC>(__gl_GetProcAddress("glMultiTexCoord4dvARB"));
    glMultiTexCoord4fARB = reinterpret_cast<PFNGLMULTITEXCOORD4FARBPROC>(__gl_GetProcAddress("glMultiTexCoord4fARB"));
    glMultiTexCoord4fvARB = reinterpret_cast<PFNGLMULTITEXCOORD4FVARBPROC>(__gl_GetProcAddress("glMultiTexCoord4fvARB"));
    glMultiTexCoord4iARB = reinterpret_cast<PFNGLMULTITEXCOORD4IARBPROC>(__gl_GetProcAddress("glMultiTexCoord4iARB"));
    glMultiTexCoord4ivARB = reinterpret_cast<PFNGLMULTITEXCOORD4IVARBPROC>(__gl_GetProcAddress("glMultiTexCoord4ivARB"));
    glMultiTexCoord4sARB = reinterpret_cast<PFNGLMULTITEXCOORD4SARBPROC>(__gl_GetProcAddress("glMultiTexCoord4sARB"));
    glMultiTexCoord4svARB = reinterpret_cast<PFNGLMULTITEXCOORD4SVARBPROC>(__gl_GetProcAddress("glMultiTexCoord4svARB"));
}

void init_GL_ARB_occlusion_query() {
    glGenQueriesARB = reinterpret_cast<PFNGLGENQUERIESARBPROC>(__gl_GetProcAddress("glGenQueriesARB"));
    glDeleteQueriesARB = reinterpret_cast<PFNGLDELETEQUERIESARBPROC>(__gl_GetProcAddress("glDeleteQueriesARB"));
    glIsQueryARB = reinterpret_cast<PFNGLISQUERYARBPROC>(__gl_GetProcAddress("glIsQueryARB"));
    glBeginQueryARB = reinterpret_cast<PFNGLBEGINQUERYARBPROC>(__gl_GetProcAddress("glBeginQueryARB"));
    glEndQueryARB = reinterpret_cast<PFNGLENDQUERYARBPROC>(__gl_GetProcAddress("glEndQueryARB"));
    glGetQueryivARB = reinterpret_cast<PFNGLGETQUERYIVARBPROC>(__gl_GetProcAddress("glGetQueryivARB"));
    glGetQueryObjectivARB = reinterpret_cast<PFNGLGETQUERYOBJECTIVARBPROC>(__gl_GetProcAddress("glGetQueryObjectivARB"));
    glGetQueryObjectuivARB = reinterpret_cast<PFNGLGETQUERYOBJECTUIVARBPROC>(__gl_GetProcAddress("glGetQueryObjectuivARB"));
}

void init_GL_ARB_occlusion_query2() {}

void init_GL_ARB_parallel_shader_compile() {
    glMaxShaderCompilerThreadsARB = reinterpret_cast<PFNGLMAXSHADERCOMPILERTHREADSARBPROC>(__gl_GetProcAddress("glMaxShaderCompilerThreadsARB"));
}

void init_GL_ARB_pipeline_statistics_query() {}

void init_GL_ARB_pixel_buffer_object() {}

void init_GL_ARB_point_parameters() {
    glPointParameterfARB = reinterpret_cast<PFNGLPOINTPARAMETERFARBPROC>(__gl_GetProcAddress("glPointParameterfARB"));
    glPointParameterfvARB = reinterpret_cast<PFNGLPOINTPARAMETERFVARBPROC>(__gl_GetProcAddress("glPointParameterfvARB"));
}

void init_GL_ARB_point_sprite() {}

void init_GL_ARB_polygon_offset_clamp() {}

void init_GL_ARB_post_depth_coverage() {}

void init_GL_ARB_program_interface_query() {}

void init_GL_ARB_provoking_vertex() {}

void init_GL_ARB_query_buffer_object() {}

void init_GL_ARB_robust_buffer_access_behavior() {}

void init_GL_ARB_robustness() {
    glGetGraphicsResetStatusARB = reinterpret_cast<PFNGLGETGRAPHICSRESETSTATUSARBPROC>(__gl_GetProcAddress("glGetGraphicsResetStatusARB"));
    glGetnTexImageARB = reinterpret_cast<PFNGLGETNTEXIMAGEARBPROC>(__gl_GetProcAddress("glGetnTexImageARB"));
    glReadnPixelsARB = reinterpret_cast<PFNGLREADNPIXELSARBPROC>(__gl_GetProcAddress("glReadnPixelsARB"));
    glGetnCompressedTexImageARB = reinterpret_cast<PFNGLGETNCOMPRESSEDTEXIMAGEARBPROC>(__gl_GetProcAddress("glGetnCompressedTexImageARB"));
    glGetnUniformfvARB = reinterpret_cast<PFNGLGETNUNIFORMFVARBPROC>(__gl_GetProcAddress("glGetnUniformfvARB"));
    glGetnUniformivARB = reinterpret_cast<PFNGLGETNUNIFORMIVARBPROC>(__gl_GetProcAddress("glGetnUniformivARB"));
    glGetnUniformuivARB = reinterpret_cast<PFNGLGETNUNIFORMUIVARBPROC>(__gl_GetProcAddress("glGetnUniformuivARB"));
    glGetnUniformdvARB = reinterpret_cast<PFNGLGETNUNIFORMDVARBPROC>(__gl_GetProcAddress("glGetnUniformdvARB"));
    glGetnMapdvARB = reinterpret_cast<PFNGLGETNMAPDVARBPROC>(__gl_GetProcAddress("glGetnMapdvARB"));
    glGetnMapfvARB = reinterpret_cast<PFNGLGETNMAPFVARBPROC>(__gl_GetProcAddress("glGetnMapfvARB"));
    glGetnMapivARB = reinterpret_cast<PFNGLGETNMAPIVARBPROC>(__gl_GetProcAddress("glGetnMapivARB"));
    glGetnPixelMapfvARB = reinterpret_cast<PFNGLGETNPIXELMAPFVARBPROC>(__gl_GetProcAddress("glGetnPixelMapfvARB"));
    glGetnPixelMapuivARB = reinterpret_cast<PFNGLGETNPIXELMAPUIVARBPROC>(__gl_GetProcAddress("glGetnPixelMapuivARB"));
    glGetnPixelMapusvARB = reinterpret_cast<PFNGLGETNPIXELMAPUSVARBPROC>(__gl_GetProcAddress("glGetnPixelMapusvARB"));
    glGetnPolygonStippleARB = reinterpret_cast<PFNGLGETNPOLYGONSTIPPLEARBPROC>(__gl_GetProcAddress("glGetnPolygonStippleARB"));
    glGetnColorTableARB = reinterpret_cast<PFNGLGETNCOLORTABLEARBPROC>(__gl_GetProcAddress("glGetnColorTableARB"));
    glGetnConvolutionFilterARB = reinterpret_cast<PFNGLGETNCONVOLUTIONFILTERARBPROC>(__gl_GetProcAddress("glGetnConvolutionFilterARB"));
    glGetnSeparableFilterARB = reinterpret_cast<PFNGLGETNSEPARABLEFILTERARBPROC>(__gl_GetProcAddress("glGetnSeparableFilterARB"));
    glGetnHistogramARB = reinterpret_cast<PFNGLGETNHISTOGRAMARBPROC>(__gl_GetProcAddress("glGetnHistogramARB"));
    glGetnMinmaxARB = reinterpret_cast<PFNGLGETNMINMAXARBPROC>(__gl_GetProcAddress("glGetnMinmaxARB"));
}

void init_GL_ARB_robustness_isolation() {}

void init_GL_ARB_sample_locations() {
    glFramebufferSampleLocationsfvARB = reinterpret_cast<PFNGLFRAMEBUFFERSAMPLELOCATIONSFVARBPROC>(__gl_GetProcAddress("glFramebufferSampleLocationsfvARB"));
    glNamedFramebufferSampleLocationsfvARB = reinterpret_cast<PFNGLNAMEDFRAMEBUFFERSAMPLELOCATIONSFVARBPROC>(__gl_GetProcAddress("glNamedFramebufferSampleLocationsfvARB"));
    glEvaluateDepthValuesARB = reinterpret_cast<PFNGLEVALUATEDEPTHVALUESARBPROC>(__gl_GetProcAddress("glEvaluateDepthValuesARB"));
}

void init_GL_ARB_sample_shading() {
    glMinSampleShadingARB = reinterpret_cast<PFNGLMINSAMPLESHADINGARBPROC>(__gl_GetProcAddress("glMinSampleShadingARB"));
}

void init_GL_ARB_sampler_objects() {}

void init_GL_ARB_seamless_cube_map() {}

void init_GL_ARB_seamless_cubemap_per_texture() {}

void init_GL_ARB_separate_shader_objects() {}

void init_GL_ARB_shader_atomic_counter_ops() {}

void init_GL_ARB_shader_atomic_counters() {}

void init_GL_ARB_shader_ballot() {}

void init_GL_ARB_shader_bit_encoding() {}

void init_GL_ARB_shader_clock() {}

void init_GL_ARB_shader_draw_parameters() {}

void init_GL_ARB_shader_group_vote() {}

void init_GL_ARB_shader_image_load_store() {}

void init_GL_ARB_shader_image_size() {}

void init_GL_ARB_shader_objects() {
    glDeleteObjectARB = reinterpret_cast<PFNGLDELETEOBJECTARBPROC>(__gl_GetProcAddress("glDeleteObjectARB"));
    glGetHandleARB = reinterpret_cast<PFNGLGETHANDLEARBPROC>(__gl_GetProcAddress("glGetHandleARB"));
    glDetachObjectARB = reinterpret_cast<PFNGLDETACHOBJECTARBPROC>(__gl_GetProcAddress("glDetachObjectARB"));
    glCreateShaderObjectARB = reinterpret_cast<PFNGLCREATESHADEROBJECTARBPROC>(__gl_GetProcAddress("glCreateShaderObjectARB"));
    glShaderSourceARB = reinterpret_cast<PFNGLSHADERSOURCEARBPROC>(__gl_GetProcAddress("glShaderSourceARB"));
    glCompileShaderARB = reinterpret_cast<PFNGLCOMPILESHADERARBPROC>(__gl_GetProcAddress("glCompileShaderARB"));
    glCreateProgramObjectARB = reinterpret_cast<PFNGLCREATEPROGRAMOBJECTARBPROC>(__gl_GetProcAddress("glCreateProgramObjectARB"));
    glAttachObjectARB = reinterpret_cast<PFNGLATTACHOBJECTARBPROC>(__gl_GetProcAddress("glAttachObjectARB"));
    glLinkProgramARB = reinterpret_cast<PFNGLLINKPROGRAMARBPROC>(__gl_GetProcAddress("glLinkProgramARB"));
    glUseProgramObjectARB = reinterpret_cast<PFNGLUSEPROGRAMOBJECTARBPROC>(__gl_GetProcAddress("glUseProgramObjectARB"));
    glValidateProgramARB = reinterpret_cast<PFNGLVALIDATEPROGRAMARBPROC>(__gl_GetProcAddress("glValidateProgramARB"));
    glUniform1fARB = reinterpret_cast<PFNGLUNIFORM1FARBPROC>(__gl_GetProcAddress("glUniform1fARB"));
    glUniform2fARB = reinterpret_cast<PFNGLUNIFORM2FARBPROC>(__gl_GetProcAddress("glUniform2fARB"));
    glUniform3fARB = reinterpret_cast<PFNGLUNIFORM3FARBPROC>(__gl_GetProcAddress("glUniform3fARB"));
    glUniform4fARB = reinterpret_cast<PFNGLUNIFORM4FARBPROC>(__gl_GetProcAddress("glUniform4fARB"));
    glUniform1iARB = reinterpret_cast<PFNGLUNIFORM1IARBPROC>(__gl_GetProcAddress("glUniform1iARB"));
    glUniform2iARB = reinterpret_cast<PFNGLUNIFORM2IARBPROC>(__gl_GetProcAddress("glUniform2iARB"));
    glUniform3iARB = reinterpret_cast<PFNGLUNIFORM3IARBPROC>(__gl_GetProcAddress("glUniform3iARB"));
    glUniform4iARB = reinterpret_cast<PFNGLUNIFORM4IARBPROC>(__gl_GetProcAddress("glUniform4iARB"));
    glUniform1fvARB = reinterpret_cast<PFNGLUNIFORM1FVARBPROC>(__gl_GetProcAddress("glUniform1fvARB"));
    glUniform2fvARB = reinterpret_cast<PFNGLUNIFORM2FVARBPROC>(__gl_GetProcAddress("glUniform2fvARB"));
    glUniform3fvARB = reinterpret_cast<PFNGLUNIFORM3FVARBPROC>(__gl_GetProcAddress("glUniform3fvARB"));
    glUniform4fvARB = reinterpret_cast<PFNGLUNIFORM4FVARBPROC>(__gl_GetProcAddress("glUniform4fvARB"));
    glUniform1ivARB = reinterpret_cast<PFNGLUNIFORM1IVARBPROC>(__gl_GetProcAddress("glUniform1ivARB"));
    glUniform2ivARB = reinterpret_cast<PFNGLUNIFORM2IVARBPROC>(__gl_GetProcAddress("glUniform2ivARB"));
    glUniform3ivARB = reinterpret_cast<PFNGLUNIFORM3IVARBPROC>(__gl_GetProcAddress("glUniform3ivARB"));
    glUniform4ivARB = reinterpret_cast<PFNGLUNIFORM4IVARBPROC>(__gl_GetProcAddress("glUniform4ivARB"));
    glUniformMatrix2fvARB = reinterpret_cast<PFNGLUNIFORMMATRIX2FVARBPROC>(__gl_GetProcAddress("glUniformMatrix2fvARB"));
    glUniformMatrix3fvARB = reinterpret_cast<PFNGLUNIFORMMATRIX3FVARBPROC>(__gl_GetProcAddress("glUniformMatrix3fvARB"));
    glUniformMatrix4fvARB = reinterpret_cast<PFNGLUNIFORMMATRIX4FVARBPROC>(__gl_GetProcAddress("glUniformMatrix4fvARB"));
    glGetObjectParameterfvARB = reinterpret_cast<PFNGLGETOBJECTPARAMETERFVARBPROC>(__gl_GetProcAddress("glGetObjectParameterfvARB"));
    glGetObjectParameterivARB = reinterpret_cast<PFNGLGETOBJECTPARAMETERIVARBPROC>(__gl_GetProcAddress("glGetObjectParameterivARB"));
    glGetInfoLogARB = reinterpret_cast<PFNGLGETINFOLOGARBPROC>(__gl_GetProcAddress("glGetInfoLogARB"));
    glGetAttachedObjectsARB = reinterpret_cast<PFNGLGETATTACHEDOBJECTSARBPROC>(__gl_GetProcAddress("glGetAttachedObjectsARB"));
    glGetUniformLocationARB = reinterpret_cast<PFNGLGETUNIFORMLOCATIONARBPROC>(__gl_GetProcAddress("glGetUniformLocationARB"));
    glGetActiveUniformARB = reinterpret_cast<PFNGLGETACTIVEUNIFORMARBPROC>(__gl_GetProcAddress("glGetActiveUniformARB"));
    glGetUniformfvARB = reinterpret_cast<PFNGLGETUNIFORMFVARBPROC>(__gl_GetProcAddress("glGetUniformfvARB"));
    glGetUniformivARB = reinterpret_cast<PFNGLGETUNIFORMIVARBPROC>(__gl_GetProcAddress("glGetUniformivARB"));
    glGetShaderSourceARB = reinterpret_cast<PFNGLGETSHADERSOURCEARBPROC>(__gl_GetProcAddress("glGetShaderSourceARB"));
}

void init_GL_ARB_shader_precision() {}

void init_GL_ARB_shader_stencil_export() {}

void init_GL_ARB_shader_storage_buffer_object() {}

void init_GL_ARB_shader_subroutine() {}

void init_GL_ARB_shader_texture_image_samples() {}

void init_GL_ARB_shader_texture_lod() {}

void init_GL_ARB_shader_viewport_layer_array() {}

void init_GL_ARB_shading_language_100() {}

void init_GL_ARB_shading_language_420pack() {}

void init_GL_ARB_shading_language_include() {
    glNamedStringARB = reinterpret_cast<PFNGLNAMEDSTRINGARBPROC>(__gl_GetProcAddress("glNamedStringARB"));
    glDeleteNamedStringARB = reinterpret_cast<PFNGLDELETENAMEDSTRINGARBPROC>(__gl_GetProcAddress("glDeleteNamedStringARB"));
    glCompileShaderIncludeARB = reinterpret_cast<PFNGLCOMPILESHADERINCLUDEARBPROC>(__gl_GetProcAddress("glCompileShaderIncludeARB"));
    glIsNamedStringARB = reinterpret_cast<PFNGLISNAMEDSTRINGARBPROC>(__gl_GetProcAddress("glIsNamedStringARB"));
    glGetNamedStringARB = reinterpret_cast<PFNGLGETNAMEDSTRINGARBPROC>(__gl_GetProcAddress("glGetNamedStringARB"));
    glGetNamedStringivARB = reinterpret_cast<PFNGLGETNAMEDSTRINGIVARBPROC>(__gl_GetProcAddress("glGetNamedStringivARB"));
}

void init_GL_ARB_shading_language_packing() {}

void init_GL_ARB_shadow() {}

void init_GL_ARB_shadow_ambient() {}

void init_GL_ARB_sparse_buffer() {
    glBufferPageCommitmentARB = reinterpret_cast<PFNGLBUFFERPAGECOMMITMENTARBPROC>(__gl_GetProcAddress("glBufferPageCommitmentARB"));
    glNamedBufferPageCommitmentEXT = reinterpret_cast<PFNGLNAMEDBUFFERPAGECOMMITMENTEXTPROC>(__gl_GetProcAddress("glNamedBufferPageCommitmentEXT"));
    glNamedBufferPageCommitmentARB = reinterpret_cast<PFNGLNAMEDBUFFERPAGECOMMITMENTARBPROC>(__gl_GetProcAddress("glNamedBufferPageCommitmentARB"));
}

void init_GL_ARB_sparse_texture() {
    glTexPageCommitmentARB = reinterpret_cast<PFNGLTEXPAGECOMMITMENTARBPROC>(__gl_GetProcAddress("glTexPageCommitmentARB"));
}

void init_GL_ARB_sparse_texture2() {}

void init_GL_ARB_sparse_texture_clamp() {}

void init_GL_ARB_spirv_extensions() {}

void init_GL_ARB_stencil_texturing() {}

void init_GL_ARB_sync() {}

void init_GL_ARB_tessellation_shader() {}

void init_GL_ARB_texture_barrier() {}

void init_GL_ARB_texture_border_clamp() {}

void init_GL_ARB_texture_buffer_object() {
    glTexBufferARB = reinterpret_cast<PFNGLTEXBUFFERARBPROC>(__gl_GetProcAddress("glTexBufferARB"));
}

void init_GL_ARB_texture_buffer_object_rgb32() {}

void init_GL_ARB_texture_buffer_range() {}

void init_GL_ARB_texture_compression() {
    glCompressedTexImage3DARB = reinterpret_cast<PFNGLCOMPRESSEDTEXIMAGE3DARBPROC>(__gl_GetProcAddress("glCompressedTexImage3DARB"));
    glCompressedTexImage2DARB = reinterpret_cast<PFNGLCOMPRESSEDTEXIMAGE2DARBPROC>(__gl_GetProcAddress("glCompressedTexImage2DARB"));
    glCompressedTexImage1DARB = reinterpret_cast<PFNGLCOMPRESSEDTEXIMAGE1DARBPROC>(__gl_GetProcAddress("glCompressedTexImage1DARB"));
    glCompressedTexSubImage3DARB = reinterpret_cast<PFNGLCOMPRESSEDTEXSUBIMAGE3DARBPROC>(__gl_GetProcAddress("glCompressedTexSubImage3DARB"));
    glCompressedTexSubImage2DARB = reinterpret_cast<PFNGLCOMPRESSEDTEXSUBIMAGE2DARBPROC>(__gl_GetProcAddress("glCompressedTexSubImage2DARB"));
    glCompressedTexSubImage1DARB = reinterpret_cast<PFNGLCOMPRESSEDTEXSUBIMAGE1DARBPROC>(__gl_GetProcAddress("glCompressedTexSubImage1DARB"));
    glGetCompressedTexImageARB = reinterpret_cast<PFNGLGETCOMPRESSEDTEXIMAGEARBPROC>(__gl_GetProcAddress("glGetCompressedTexImageARB"));
}

void init_GL_ARB_texture_compression_bptc() {}

void init_GL_ARB_texture_compression_rgtc() {}

void init_GL_ARB_texture_cube_map() {}

void init_GL_ARB_texture_cube_map_array() {}

void init_GL_ARB_texture_env_add() {}

void init_GL_ARB_texture_env_combine() {}

void init_GL_ARB_texture_env_crossbar() {}

void init_GL_ARB_texture_env_dot3() {}

void init_GL_ARB_texture_filter_anisotropic() {}

void init_GL_ARB_texture_filter_minmax() {}

void init_GL_ARB_texture_float() {}

void init_GL_ARB_texture_gather() {}

void init_GL_ARB_texture_mirror_clamp_to_edge() {}

void init_GL_ARB_texture_mirrored_repeat() {}

void init_GL_ARB_texture_multisample() {}

void init_GL_ARB_texture_non_power_of_two() {}

void init_GL_ARB_texture_query_levels() {}

void init_GL_ARB_texture_query_lod() {}

void init_GL_ARB_texture_rectangle() {}

void init_GL_ARB_texture_rg() {}

void init_GL_ARB_texture_rgb10_a2ui() {}

void init_GL_ARB_texture_stencil8() {}

void init_GL_ARB_texture_storage() {}

void init_GL_ARB_texture_storage_multisample() {}

void init_GL_ARB_texture_swizzle() {}

void init_GL_ARB_texture_view() {}

void init_GL_ARB_timer_query() {}

void init_GL_ARB_transform_feedback2() {}

void init_GL_ARB_transform_feedback3() {}

void init_GL_ARB_transform_feedback_instanced() {}

void init_GL_ARB_transform_feedback_overflow_query() {}

void init_GL_ARB_transpose_matrix() {
    glLoadTransposeMatrixfARB = reinterpret_cast<PFNGLLOADTRANSPOSEMATRIXFARBPROC>(__gl_GetProcAddress("glLoadTransposeMatrixfARB"));
    glLoadTransposeMatrixdARB = reinterpret_cast<PFNGLLOADTRANSPOSEMATRIXDARBPROC>(__gl_GetProcAddress("glLoadTransposeMatrixdARB"));
    glMultTransposeMatrixfARB = reinterpret_cast<PFNGLMULTTRANSPOSEMATRIXFARBPROC>(__gl_GetProcAddress("glMultTransposeMatrixfARB"));
    glMultTransposeMatrixdARB = reinterpret_cast<PFNGLMULTTRANSPOSEMATRIXDARBPROC>(__gl_GetProcAddress("glMultTransposeMatrixdARB"));
}

void init_GL_ARB_uniform_buffer_object() {}

void init_GL_ARB_vertex_array_bgra() {}

void init_GL_ARB_vertex_array_object() {}

void init_GL_ARB_vertex_attrib_64bit() {}

void init_GL_ARB_vertex_attrib_binding() {}

void init_GL_ARB_vertex_blend() {
    glWeightbvARB = reinterpret_cast<PFNGLWEIGHTBVARBPROC>(__gl_GetProcAddress("glWeightbvARB"));
    glWeightsvARB = reinterpret_cast<PFNGLWEIGHTSVARBPROC>(__gl_GetProcAddress("glWeightsvARB"));
    glWeightivARB = reinterpret_cast<PFNGLWEIGHTIVARBPROC>(__gl_GetProcAddress("glWeightivARB"));
    glWeightfvARB = reinterpret_cast<PFNGLWEIGHTFVARBPROC>(__gl_GetProcAddress("glWeightfvARB"));
    glWeightdvARB = reinterpret_cast<PFNGLWEIGHTDVARBPROC>(__gl_GetProcAddress("glWeightdvARB"));
    glWeightubvARB = reinterpret_cast<PFNGLWEIGHTUBVARBPROC>(__gl_GetProcAddress("glWeightubvARB"));
    glWeightusvARB = reinterpret_cast<PFNGLWEIGHTUSVARBPROC>(__gl_GetProcAddress("glWeightusvARB"));
    glWeightuivARB = reinterpret_cast<PFNGLWEIGHTUIVARBPROC>(__gl_GetProcAddress("glWeightuivARB"));
    glWeightPointerARB = reinterpret_cast<PFNGLWEIGHTPOINTERARBPROC>(__gl_GetProcAddress("glWeightPointerARB"));
    glVertexBlendARB = reinterpret_cast<PFNGLVERTEXBLENDARBPROC>(__gl_GetProcAddress("glVertexBlendARB"));
}

void init_GL_ARB_vertex_buffer_object() {
    glBindBufferARB = reinterpret_cast<PFNGLBINDBUFFERARBPROC>(__gl_GetProcAddress("glBindBufferARB"));
    glDeleteBuffersARB = reinterpret_cast<PFNGLDELETEBUFFERSARBPROC>(__gl_GetProcAddress("glDeleteBuffersARB"));
    glGenBuffersARB = reinterpret_cast<PFNGLGENBUFFERSARBPROC>(__gl_GetProcAddress("glGenBuffersARB"));
    glIsBufferARB = reinterpret_cast<PFNGLISBUFFERARBPROC>(__gl_GetProcAddress("glIsBufferARB"));
    glBufferDataARB = reinterpret_cast<PFNGLBUFFERDATAARBPROC>(__gl_GetProcAddress("glBufferDataARB"));
    glBufferSubDataARB = reinterpret_cast<PFNGLBUFFERSUBDATAARBPROC>(__gl_GetProcAddress("glBufferSubDataARB"));
    glGetBufferSubDataARB = reinterpret_cast<PFNGLGETBUFFERSUBDATAARBPROC>(__gl_GetProcAddress("glGetBufferSubDataARB"));
    glMapBufferARB = reinterpret_cast<PFNGLMAPBUFFERARBPROC>(__gl_GetProcAddress("glMapBufferARB"));
    glUnmapBufferARB = reinterpret_cast<PFNGLUNMAPBUFFERARBPROC>(__gl_GetProcAddress("glUnmapBufferARB"));
    glGetBufferParameterivARB = reinterpret_cast<PFNGLGETBUFFERPARAMETERIVARBPROC>(__gl_GetProcAddress("glGetBufferParameterivARB"));
    glGetBufferPointervARB = reinterpret_cast<PFNGLGETBUFFERPOINTERVARBPROC>(__gl_GetProcAddress("glGetBufferPointervARB"));
}

void init_GL_ARB_vertex_program() {
    glVertexAttrib1dARB = reinterpret_cast<PFNGLVERTEXATTRIB1DARBPROC>(__gl_GetProcAddress("glVertexAttrib1dARB"));
    glVertexAttrib1dvARB = reinterpret_cast<PFNGLVERTEXATTRIB1DVARBPROC>(__gl_GetProcAddress("glVertexAttrib1dvARB"));
    glVertexAttrib1fARB = reinterpret_cast<PFNGLVERTEXATTRIB1FARBPROC>(__gl_GetProcAddress("glVertexAttrib1fARB"));
    glVertexAttrib1fvARB = reinterpret_cast<PFNGLVERTEXATTRIB1FVARBPROC>(__gl_GetProcAddress("glVertexAttrib1fvARB"));
    glVertexAttrib1sARB = reinterpret_cast<PFNGLVERTEXATTRIB1SARBPROC>(__gl_GetProcAddress("glVertexAttrib1sARB"));
    glVertexAttrib1svARB = reinterpret_cast<PFNGLVERTEXATTRIB1SVARBPROC>(__gl_GetProcAddress("glVertexAttrib1svARB"));
    glVertexAttrib2dARB = reinterpret_cast<PFNGLVERTEXATTRIB2DARBPROC>(__gl_GetProcAddress("glVertexAttrib2dARB"));
    glVertexAttrib2dvARB = reinterpret_cast<PFNGLVERTEXATTRIB2DVARBPROC>(__gl_GetProcAddress("glVertexAttrib2dvARB"));
    glVertexAttrib2fARB = reinterpret_cast<PFNGLVERTEXATTRIB2FARBPROC>(__gl_GetProcAddress("glVertexAttrib2fARB"));
    glVertexAttrib2fvARB = reinterpret_cast<PFNGLVERTEXATTRIB2FVARBPROC>(__gl_GetProcAddress("glVertexAttrib2fvARB"));
    glVertexAttrib2sARB = reinterpret_cast<PFNGLVERTEXATTRIB2SARBPROC>(__gl_GetProcAddress("glVertexAttrib2sARB"));
    glVertexAttrib2svARB = reinterpret_cast<PFNGLVERTEXATTRIB2SVARBPROC>(__gl_GetProcAddress("glVertexAttrib2svARB"));
    glVertexAttrib3dARB = reinterpret_cast<PFNGLVERTEXATTRIB3DARBPROC>(__gl_GetProcAddress("glVertexAttrib3dARB"));
    glVertexAttrib3dvARB = reinterpret_cast<PFNGLVERTEXATTRIB3DVARBPROC>(__gl_GetProcAddress("glVertexAttrib3dvARB"));
    glVertexAttrib3fARB = reinterpret_cast<PFNGLVERTEXATTRIB3FARBPROC>(__gl_GetProcAddress("glVertexAttrib3fARB"));
    glVertexAttrib3fvARB = reinterpret_cast<PFNGLVERTEXATTRIB3FVARBPROC>(__gl_GetProcAddress("glVertexAttrib3fvARB"));
    glVertexAttrib3sARB = reinterpret_cast<PFNGLVERTEXATTRIB3SARBPROC>(__gl_GetProcAddress("glVertexAttrib3sARB"));
    glVertexAttrib3svARB = reinterpret_cast<PFNGLVERTEXATTRIB3SVARBPROC>(__gl_GetProcAddress("glVertexAttrib3svARB"));
    glVertexAttrib4NbvARB = reinterpret_cast<PFNGLVERTEXATTRIB4NBVARBPROC>(__gl_GetProcAddress("glVertexAttrib4NbvARB"));
    glVertexAttrib4NivARB = reinterpret_cast<PFNGLVERTEXATTRIB4NIVARBPROC>(__gl_GetProcAddress("glVertexAttrib4NivARB"));
    glVertexAttrib4NsvARB = reinterpret_cast<PFNGLVERTEXATTRIB4NSVARBPROC>(__gl_GetProcAddress("glVertexAttrib4NsvARB"));
    glVertexAttrib4NubARB = reinterpret_cast<PFNGLVERTEXATTRIB4NUBARBPROC>(__gl_GetProcAddress("glVertexAttrib4NubARB"));
    glVertexAttrib4NubvARB = reinterpret_cast<PFNGLVERTEXATTRIB4NUBVARBPROC>(__gl_GetProcAddress("glVertexAttrib4NubvARB"));
    glVertexAttrib4NuivARB = reinterpret_cast<PFNGLVERTEXATTRIB4NUIVARBPROC>(__gl_GetProcAddress("glVertexAttrib4NuivARB"));
    glVertexAttrib4NusvARB = reinterpret_cast<PFNGLVERTEXATTRIB4NUSVARBPROC>(__gl_GetProcAddress("glVertexAttrib4NusvARB"));
    glVertexAttrib4bvARB = reinterpret_cast<PFNGLVERTEXATTRIB4BVARBPROC>(__gl_GetProcAddress("glVertexAttrib4bvARB"));
    glVertexAttrib4dARB = reinterpret_cast<PFNGLVERTEXATTRIB4DARBPROC>(__gl_GetProcAddress("glVertexAttrib4dARB"));
    glVertexAttrib4dvARB = reinterpret_cast<PFNGLVERTEXATTRIB4DVARBPROC>(__gl_GetProcAddress("glVertexAttrib4dvARB"));
    glVertexAttrib4fARB = reinterpret_cast<PFNGLVERTEXATTRIB4FARBPROC>(__gl_GetProcAddress("glVertexAttrib4fARB"));
    glVertexAttrib4fvARB = reinterpret_cast<PFNGLVERTEXATTRIB4FVARBPROC>(__gl_GetProcAddress("glVertexAttrib4fvARB"));
    glVertexAttrib4ivARB = reinterpret_cast<PFNGLVERTEXATTRIB4IVARBPROC>(__gl_GetProcAddress("glVertexAttrib4ivARB"));
    glVertexAttrib4sARB = reinterpret_cast<PFNGLVERTEXATTRIB4SARBPROC>(__gl_GetProcAddress("glVertexAttrib4sARB"));
    glVertexAttrib4svARB = reinterpret_cast<PFNGLVERTEXATTRIB4SVARBPROC>(__gl_GetProcAddress("glVertexAttrib4svARB"));
    glVertexAttrib4ubvARB = reinterpret_cast<PFNGLVERTEXATTRIB4UBVARBPROC>(__gl_GetProcAddress("glVertexAttrib4ubvARB"));
    glVertexAttrib4uivARB = reinterpret_cast<PFNGLVERTEXATTRIB4UIVARBPROC>(__gl_GetProcAddress("glVertexAttrib4uivARB"));
    glVertexAttrib4usvARB = reinterpret_cast<PFNGLVERTEXATTRIB4USVARBPROC>(__gl_GetProcAddress("glVertexAttrib4usvARB"));
    glVertexAttribPointerARB = reinterpret_cast<PFNGLVERTEXATTRIBPOINTERARBPROC>(__gl_GetProcAddress("glVertexAttribPointerARB"));
    glEnableVertexAttribArrayARB = reinterpret_cast<PFNGLENABLEVERTEXATTRIBARRAYARBPROC>(__gl_GetProcAddress("glEnableVertexAttribArrayARB"));
    glDisableVertexAttribArrayARB = reinterpret_cast<PFNGLDISABLEVERTEXATTRIBARRAYARBPROC>(__gl_GetProcAddress("glDisableVertexAttribArrayARB"));
    glGetVertexAttribdvARB = reinterpret_cast<PFNGLGETVERTEXATTRIBDVARBPROC>(__gl_GetProcAddress("glGetVertexAttribdvARB"));
    glGetVertexAttribfvARB = reinterpret_cast<PFNGLGETVERTEXATTRIBFVARBPROC>(__gl_GetProcAddress("glGetVertexAttribfvARB"));
    glGetVertexAttribivARB = reinterpret_cast<PFNGLGETVERTEXATTRIBIVARBPROC>(__gl_GetProcAddress("glGetVertexAttribivARB"));
    glGetVertexAttribPointervARB = reinterpret_cast<PFNGLGETVERTEXATTRIBPOINTERVARBPROC>(__gl_GetProcAddress("glGetVertexAttribPointervARB"));
}

void init_GL_ARB_vertex_shader() {
    glBindAttribLocationARB = reinterpret_cast<PFNGLBINDATTRIBLOCATIONARBPROC>(__gl_GetProcAddress("glBindAttribLocationARB"));
    glGetActiveAttribARB = reinterpret_cast<PFNGLGETACTIVEATTRIBARBPROC>(__gl_GetProcAddress("glGetActiveAttribARB"));
    glGetAttribLocationARB = reinterpret_cast<PFNGLGETATTRIBLOCATIONARBPROC>(__gl_GetProcAddress("glGetAttribLocationARB"));
}

void init_GL_ARB_vertex_type_10f_11f_11f_rev() {}

void init_GL_ARB_vertex_type_2_10_10_10_rev() {}

void init_GL_ARB_viewport_array() {
    glDepthRangeArraydvNV = reinterpret_cast<PFNGLDEPTHRANGEARRAYDVNVPROC>(__gl_GetProcAddress("glDepthRangeArraydvNV"));
    glDepthRangeIndexeddNV = reinterpret_cast<PFNGLDEPTHRANGEINDEXEDDNVPROC>(__gl_GetProcAddress("glDepthRangeIndexeddNV"));
}

void init_GL_ARB_window_pos() {
    glWindowPos2dARB = reinterpret_cast<PFNGLWINDOWPOS2DARBPROC>(__gl_GetProcAddress("glWindowPos2dARB"));
    glWindowPos2dvARB = reinterpret_cast<PFNGLWINDOWPOS2DVARBPROC>(__gl_GetProcAddress("glWindowPos2dvARB"));
    glWindowPos2fARB = reinterpret_cast<PFNGLWINDOWPOS2FARBPROC>(__gl_GetProcAddress("glWindowPos2fARB"));
    glWindowPos2fvARB = reinterpret_cast<PFNGLWINDOWPOS2FVARBPROC>(__gl_GetProcAddress("glWindowPos2fvARB"));
    glWindowPos2iARB = reinterpret_cast<PFNGLWINDOWPOS2IARBPROC>(__gl_GetProcAddress("glWindowPos2iARB"));
    glWindowPos2ivARB = reinterpret_cast<PFNGLWINDOWPOS2IVARBPROC>(__gl_GetProcAddress("glWindowPos2ivARB"));
    glWindowPos2sARB = reinterpret_cast<PFNGLWINDOWPOS2SARBPROC>(__gl_GetProcAddress("glWindowPos2sARB"));
    glWindowPos2svARB = reinterpret_cast<PFNGLWINDOWPOS2SVARBPROC>(__gl_GetProcAddress("glWindowPos2svARB"));
    glWindowPos3dARB = reinterpret_cast<PFNGLWINDOWPOS3DARBPROC>(__gl_GetProcAddress("glWindowPos3dARB"));
    glWindowPos3dvARB = reinterpret_cast<PFNGLWINDOWPOS3DVARBPROC>(__gl_GetProcAddress("glWindowPos3dvARB"));
    glWindowPos3fARB = reinterpret_cast<PFNGLWINDOWPOS3FARBPROC>(__gl_GetProcAddress("glWindowPos3fARB"));
    glWindowPos3fvARB = reinterpret_cast<PFNGLWINDOWPOS3FVARBPROC>(__gl_GetProcAddress("glWindowPos3fvARB"));
    glWindowPos3iARB = reinterpret_cast<PFNGLWINDOWPOS3IARBPROC>(__gl_GetProcAddress("glWindowPos3iARB"));
    glWindowPos3ivARB = reinterpret_cast<PFNGLWINDOWPOS3IVARBPROC>(__gl_GetProcAddress("glWindowPos3ivARB"));
    glWindowPos3sARB = reinterpret_cast<PFNGLWINDOWPOS3SARBPROC>(__gl_GetProcAddress("glWindowPos3sARB"));
    glWindowPos3svARB = reinterpret_cast<PFNGLWINDOWPOS3SVARBPROC>(__gl_GetProcAddress("glWindowPos3svARB"));
}
