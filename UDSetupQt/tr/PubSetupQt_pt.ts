<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>ListedNameNote</name>
    <message>
        <source>It will be listed without a name.</source>
        <translation>Aparecerá na lista sem nome.</translation>
    </message>
    <message>
        <source>It will be listed as &quot;%1&quot;.</source>
        <translation>Aparecerá na lista como “%1”.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Publishers</source>
        <translation>Publicadores</translation>
    </message>
    <message>
        <source>The registered disc publishers and their status</source>
        <translation>Os publicadores de discos registrados e seu status</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Tool</source>
        <translation>&amp;Ferramentas</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;juda</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barra de ferramentas</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Adicionar…</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Remover…</translation>
    </message>
    <message>
        <source>&amp;Properties...</source>
        <translation>&amp;Propriedades…</translation>
    </message>
    <message>
        <source>Common &amp;Setting for Publishing…</source>
        <translation>&amp;Configurações comuns de publicação…</translation>
    </message>
    <message>
        <source>Collect and Save Logs</source>
        <translation>Coletar e salvar logs</translation>
    </message>
    <message>
        <source>&amp;About Ulmar Disc Setup</source>
        <translation>&amp;Sobre o Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Start Ulmar Disc &amp;Monitor</source>
        <translation>Iniciar o Ulmar Disc &amp;Monitor</translation>
    </message>
</context>
<context>
    <name>PubSetup</name>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Log collection has finished.</source>
        <translation>Os logs foram coletados e salvos.</translation>
    </message>
    <message>
        <source>Failed to execute tar command. Check that installation has been performed correctly.</source>
        <translation>Não foi possível executar o comando “tar”. Verifique se a instalação foi concluída corretamente.</translation>
    </message>
    <message>
        <source>Failed to execute tar command. Check that installation has been performed correctly. (%d)</source>
        <translation>Não foi possível executar o comando “tar”. Verifique se a instalação foi concluída corretamente. (%d)</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Model name</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Host Name</source>
        <translation>Host</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>Transmitting</source>
        <translation>Transmissão</translation>
    </message>
    <message>
        <source>Available Space</source>
        <translation>Espaço livre</translation>
    </message>
    <message>
        <source>The Publish Mode registered in the output device could not be obtained, so the previously displayed  value is displayed.
The displayed Publish Mode and stacker settings may be different from the values that are actually registered.</source>
        <translation>Não foi possível obter o modo de publicação registrado no dispositivo de saída, por isso o último valor conhecido continua sendo exibido.
O modo de publicação e as configurações dos empilhadores exibidos podem ser diferentes dos valores realmente registrados.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Não conectado</translation>
    </message>
    <message>
        <source>Do you want to delete it?</source>
        <translation>Deseja remover este item?</translation>
    </message>
    <message>
        <source>There are jobs in the output device, so it could not be deleted.
Please delete it after all jobs are finished.</source>
        <translation>Há trabalhos no dispositivo de saída, por isso não foi possível removê-lo.
Remova-o depois que todos os trabalhos terminarem.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>Não foi possível alterar a configuração.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup collects logs about CD/DVD/BD Publisher, and then saves them in local PC.
Refer to the documentation for what kind of information is collected.
ARVEN Ulmar Disc Setup does not send information.
Would you like to continue?</source>
        <translation>O ARVEN Ulmar Disc Setup coleta os logs dos publicadores CD/DVD/BD e os salva neste computador.
Consulte na documentação quais informações são coletadas.
O ARVEN Ulmar Disc Setup não envia informações.
Deseja continuar?</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Salvar como</translation>
    </message>
    <message>
        <source>Archive file to save (*.tgz)</source>
        <translation>Arquivo compactado a ser salvo (*.tgz)</translation>
    </message>
    <message>
        <source>Administrator not registered</source>
        <translation>Administrador não registrado</translation>
    </message>
    <message>
        <source>Unsupported version</source>
        <translation>Versão não suportada</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>No publishers are registered. To add one, choose Add in the Edit menu.</source>
        <translation>Nenhum publicador está registrado. Para adicionar um, escolha “Adicionar” no menu “Editar”.</translation>
    </message>
    <message>
        <source>No publishers are registered.</source>
        <translation>Nenhum publicador está registrado.</translation>
    </message>
</context>
<context>
    <name>StatusProgram</name>
    <message>
        <source>Stacker 4</source>
        <translation>Empilhador 4</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Tinta</translation>
    </message>
    <message>
        <source>Prints left</source>
        <translation>Impressões restantes</translation>
    </message>
    <message>
        <source>No jobs</source>
        <translation>Nenhum trabalho</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Trabalho</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>Discos</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Com falha</translation>
    </message>
    <message>
        <source>Time left</source>
        <translation>Tempo restante</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>em espera</translation>
    </message>
    <message>
        <source>running</source>
        <translation>em curso</translation>
    </message>
    <message>
        <source>canceling</source>
        <translation>cancelamento em curso</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>pausa em curso</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>em pausa</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>interrupção em curso</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>interrompido</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>finished</source>
        <translation>concluído</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Ciano</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarelo</translation>
    </message>
    <message>
        <source>Light cyan</source>
        <translation>Ciano claro</translation>
    </message>
    <message>
        <source>Light magenta</source>
        <translation>Magenta claro</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Preto</translation>
    </message>
    <message>
        <source>nearly empty</source>
        <translation>quase vazio</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>removido</translation>
    </message>
    <message>
        <source>not recognized</source>
        <translation>não reconhecido</translation>
    </message>
    <message>
        <source>not an original</source>
        <translation>não original</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconhecido</translation>
    </message>
    <message>
        <source>not full</source>
        <translation>não cheio</translation>
    </message>
    <message>
        <source>too full</source>
        <translation>cheio demais</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>inativo</translation>
    </message>
    <message>
        <source>contains a disc</source>
        <translation>contém um disco</translation>
    </message>
    <message>
        <source>writing</source>
        <translation>gravação</translation>
    </message>
    <message>
        <source>verifying</source>
        <translation>verificação</translation>
    </message>
    <message>
        <source>error</source>
        <translation>erro</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>não utilizado</translation>
    </message>
    <message>
        <source>conveying</source>
        <translation>transporte</translation>
    </message>
    <message>
        <source>running a plug-in</source>
        <translation>execução de um plug-in</translation>
    </message>
    <message>
        <source>measuring</source>
        <translation>medição</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>leitura</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>impressão</translation>
    </message>
    <message>
        <source>cleaning</source>
        <translation>limpeza</translation>
    </message>
    <message>
        <source>drying</source>
        <translation>secagem</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>ocupado</translation>
    </message>
    <message>
        <source>Security mode</source>
        <translation>Modo de segurança</translation>
    </message>
    <message>
        <source>Output control mode</source>
        <translation>Modo de controle de saída</translation>
    </message>
    <message>
        <source>Error rate mode</source>
        <translation>Modo de taxa de erros</translation>
    </message>
    <message>
        <source>Read mode</source>
        <translation>Modo de leitura</translation>
    </message>
    <message>
        <source>Input Stacker</source>
        <translation>Empilhador de entrada</translation>
    </message>
    <message>
        <source>maintenance due soon</source>
        <translation>manutenção em breve</translation>
    </message>
    <message>
        <source>ink pad nearly full</source>
        <translation>almofada de tinta quase cheia</translation>
    </message>
    <message>
        <source>mechanical warning</source>
        <translation>aviso mecânico</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>off-line</translation>
    </message>
    <message>
        <source>ink pad full</source>
        <translation>almofada de tinta cheia</translation>
    </message>
    <message>
        <source>maintenance required</source>
        <translation>requer manutenção</translation>
    </message>
    <message>
        <source>fatal error</source>
        <translation>erro grave</translation>
    </message>
    <message>
        <source>disc cover open</source>
        <translation>tampa dos discos aberta</translation>
    </message>
    <message>
        <source>ink cover open</source>
        <translation>tampa da tinta aberta</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>sem tinta</translation>
    </message>
    <message>
        <source>maintenance box cover open</source>
        <translation>tampa da caixa de manutenção aberta</translation>
    </message>
    <message>
        <source>maintenance box removed</source>
        <translation>caixa de manutenção removida</translation>
    </message>
    <message>
        <source>maintenance box full</source>
        <translation>caixa de manutenção cheia</translation>
    </message>
    <message>
        <source>mechanical error</source>
        <translation>erro mecânico</translation>
    </message>
    <message>
        <source>stacker 1 removed</source>
        <translation>empilhador 1 removido</translation>
    </message>
    <message>
        <source>stacker 2 removed</source>
        <translation>empilhador 2 removido</translation>
    </message>
    <message>
        <source>stacker 3 removed</source>
        <translation>empilhador 3 removido</translation>
    </message>
    <message>
        <source>stacker 4 open</source>
        <translation>empilhador 4 aberto</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>desligado</translation>
    </message>
    <message>
        <source>fatal printer error</source>
        <translation>erro grave da impressora</translation>
    </message>
    <message>
        <source>printer requires maintenance</source>
        <translation>a impressora requer manutenção</translation>
    </message>
    <message>
        <source>printer error</source>
        <translation>erro da impressora</translation>
    </message>
    <message>
        <source>stacker 1 too full</source>
        <translation>empilhador 1 cheio demais</translation>
    </message>
    <message>
        <source>stacker 2 too full</source>
        <translation>empilhador 2 cheio demais</translation>
    </message>
    <message>
        <source>in operation</source>
        <translation>em operação</translation>
    </message>
    <message>
        <source>stacker 3 too full</source>
        <translation>empilhador 3 cheio demais</translation>
    </message>
    <message>
        <source>initializing</source>
        <translation>inicializando</translation>
    </message>
    <message>
        <source>recovering</source>
        <translation>recuperando</translation>
    </message>
    <message>
        <source>finalizing</source>
        <translation>finalizando</translation>
    </message>
    <message>
        <source>initialization suspended</source>
        <translation>inicialização suspensa</translation>
    </message>
    <message>
        <source>recovery suspended</source>
        <translation>recuperação suspensa</translation>
    </message>
    <message>
        <source>disc pick error</source>
        <translation>erro ao pegar um disco</translation>
    </message>
    <message>
        <source>under maintenance</source>
        <translation>em manutenção</translation>
    </message>
    <message>
        <source>disc management error</source>
        <translation>erro de gerenciamento de discos</translation>
    </message>
    <message>
        <source>fan error</source>
        <translation>erro do ventilador</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Sem resposta</translation>
    </message>
</context>
<context>
    <name>aboutDialog</name>
    <message>
        <source>About ARVEN Ulmar Disc Setup</source>
        <translation>Sobre o ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Program icon</source>
        <translation>Ícone do programa</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup for Linux</source>
        <translation>ARVEN Ulmar Disc Setup para Linux</translation>
    </message>
    <message>
        <source>Registers disc publishers, shows their status and changes their settings.</source>
        <translation>Registra publicadores de discos, mostra seu status e altera suas configurações.</translation>
    </message>
</context>
<context>
    <name>addPublisherDialog</name>
    <message>
        <source>Register New CD/DVD/BD Publisher</source>
        <translation>Registrar novo publicador CD/DVD/BD</translation>
    </message>
    <message>
        <source>Please specify the IP address or host name for the CD/DVD Publisher on the network you want to register.</source>
        <translation>Especifique o endereço IP ou o nome do host do publicador CD/DVD em rede que deseja registrar.</translation>
    </message>
    <message>
        <source>Please type the name of a CD/DVD Publisher.</source>
        <translation>Digite um nome para o publicador CD/DVD.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The same name is already registered.
Please use a different name.</source>
        <translation>Este nome já está registrado.
Use um nome diferente.</translation>
    </message>
    <message>
        <source>The output device could not be found on the network.
There is a possibility that either the host name or IP address is wrong, or the output device is not connected to the network.</source>
        <translation>O dispositivo de saída não foi encontrado na rede.
É possível que o nome do host ou o endereço IP esteja incorreto, ou que o dispositivo de saída não esteja conectado à rede.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>Não foi possível alterar a configuração.</translation>
    </message>
</context>
<context>
    <name>printerMaintHeadCleaning1</name>
    <message>
        <source>Head Cleaning</source>
        <translation>Limpeza das cabeças</translation>
    </message>
    <message>
        <source>Head cleaning</source>
        <translation>Limpeza das cabeças</translation>
    </message>
    <message>
        <source>Only clean the print head when faint areas or gaps appear in your printout, because cleaning consumes ink.
If there is not enough ink to perform a head cleaning, replace the ink cartridge first.</source>
        <translation>Limpe a cabeça de impressão apenas se aparecerem áreas claras ou falhas na impressão, pois a limpeza consome tinta.
Se não houver tinta suficiente para a limpeza, substitua primeiro o cartucho de tinta.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
</context>
<context>
    <name>printerMaintHeadCleaning2</name>
    <message>
        <source>Head Cleaning</source>
        <translation>Limpeza das cabeças</translation>
    </message>
    <message>
        <source>Head cleaning</source>
        <translation>Limpeza das cabeças</translation>
    </message>
    <message>
        <source>Cleaning takes a couple of minutes.  Cleaning is finished when the power light on the printer&apos;s control panel stops flashing. To check the effectiveness of the cleaning, click the Print Nozzle Check Pattern.</source>
        <translation>A limpeza leva alguns minutos e termina quando a luz de alimentação no painel de controle da impressora para de piscar. Para verificar o resultado da limpeza, clique em “Imprimir padrão de verificação”.</translation>
    </message>
    <message>
        <source>Nozzle check pattern</source>
        <translation>Imprimir padrão de verificação</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Concluir</translation>
    </message>
</context>
<context>
    <name>printerMaintNozzleCheck1</name>
    <message>
        <source>Nozzle Check</source>
        <translation>Verificação dos jatos</translation>
    </message>
    <message>
        <source>Nozzle check</source>
        <translation>Verificação dos jatos</translation>
    </message>
    <message>
        <source>Nozzle check pattern</source>
        <translation>Padrão de verificação dos jatos</translation>
    </message>
    <message>
        <source>Print a pattern in order to check that the print head nozzles are not blocked.

Check the cable connection and turn the device on. Be sure to set discs with an outside print diameter of 116 mm or more in Stacker 1.</source>
        <translation>Imprima um padrão para verificar se os jatos da cabeça de impressão não estão obstruídos.

Verifique a conexão do cabo e ligue o dispositivo. Certifique-se de colocar no empilhador 1 discos com diâmetro externo de impressão de 116&#xa0;mm ou mais.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
</context>
<context>
    <name>printerMaintNozzleCheck2</name>
    <message>
        <source>Nozzle Check</source>
        <translation>Verificação dos jatos</translation>
    </message>
    <message>
        <source>Nozzle check</source>
        <translation>Verificação dos jatos</translation>
    </message>
    <message>
        <source>Pattern without missing segments</source>
        <translation>Padrão sem segmentos ausentes</translation>
    </message>
    <message>
        <source>Pattern with missing segments</source>
        <translation>Padrão com segmentos ausentes</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Correto</translation>
    </message>
    <message>
        <source>Cleaning needed</source>
        <translation>Limpeza necessária</translation>
    </message>
    <message>
        <source>Compare the printed pattern with the sample above. If any segments are missing in the printed pattern, click the Clean button. Otherwise, click the Finish button to quit.</source>
        <translation>Compare o padrão impresso com os exemplos acima. Se faltarem segmentos no padrão impresso, clique em “Limpar”. Caso contrário, clique em “Concluir” para sair.</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Concluir</translation>
    </message>
</context>
<context>
    <name>propertyDialog</name>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Host name</source>
        <translation>Nome do host</translation>
    </message>
    <message>
        <source>Stacker Settings</source>
        <translation>Configurações dos empilhadores</translation>
    </message>
    <message>
        <source>Publish Mode</source>
        <translation>Modo de publicação</translation>
    </message>
    <message>
        <source>Standard mode</source>
        <translation>Modo padrão</translation>
    </message>
    <message>
        <source>External Output / Low-volume mode</source>
        <translation>Modo de saída externa / baixo volume</translation>
    </message>
    <message>
        <source>Batch mode</source>
        <translation>Modo em lote</translation>
    </message>
    <message>
        <source>Stacker 1</source>
        <translation>Empilhador 1</translation>
    </message>
    <message>
        <source>Stacker 2</source>
        <translation>Empilhador 2</translation>
    </message>
    <message>
        <source>Output Stacker</source>
        <translation>Empilhador de saída</translation>
    </message>
    <message>
        <source>Stacker 3</source>
        <translation>Empilhador 3</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Usar</translation>
    </message>
    <message>
        <source>Do not use</source>
        <translation>Não usar</translation>
    </message>
    <message>
        <source>Way of the discs</source>
        <translation>Percurso dos discos</translation>
    </message>
    <message>
        <source>Drive Settings</source>
        <translation>Configurações das unidades</translation>
    </message>
    <message>
        <source>Drive to Use</source>
        <translation>Unidade a ser usada</translation>
    </message>
    <message>
        <source>Use Both</source>
        <translation>Usar ambas</translation>
    </message>
    <message>
        <source>Use Drive 1 Only</source>
        <translation>Usar apenas a unidade 1</translation>
    </message>
    <message>
        <source>Use Drive 2 Only</source>
        <translation>Usar apenas a unidade 2</translation>
    </message>
    <message>
        <source>Number of write retries</source>
        <translation>Número de novas tentativas de gravação</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>Configurações da impressora</translation>
    </message>
    <message>
        <source>Show &amp;error mark on discs that experience errors</source>
        <translation>Imprimir uma marca de &amp;erro nos discos com erros</translation>
    </message>
    <message>
        <source>Failure error mark</source>
        <translation>Marca de erro</translation>
    </message>
    <message>
        <source>Printer Maintenance</source>
        <translation>Manutenção da impressora</translation>
    </message>
    <message>
        <source>Nozzle Check</source>
        <translation>Verificação dos jatos</translation>
    </message>
    <message>
        <source>Use this utility if gaps or faint areas appear in your printout.</source>
        <translation>Use esta função se aparecerem falhas ou áreas claras na impressão.</translation>
    </message>
    <message>
        <source>Head Cleaning</source>
        <translation>Limpeza das cabeças</translation>
    </message>
    <message>
        <source>Use this utility if your print quality declines or the Nozzle Check indicates clogged nozzles.</source>
        <translation>Use esta função se a qualidade de impressão diminuir ou se a verificação dos jatos indicar jatos obstruídos.</translation>
    </message>
    <message>
        <source>Maintenance Info</source>
        <translation>Dados de manutenção</translation>
    </message>
    <message>
        <source>Total discs published:</source>
        <translation>Total de discos publicados:</translation>
    </message>
    <message>
        <source>[discs]</source>
        <translation>[discos]</translation>
    </message>
    <message>
        <source>Number of printed discs:</source>
        <translation>Número de discos impressos:</translation>
    </message>
    <message>
        <source>Maintenance Box free space:</source>
        <translation>Espaço livre na caixa de manutenção:</translation>
    </message>
    <message>
        <source>[%]</source>
        <translation>[%]</translation>
    </message>
    <message>
        <source>Service life of Drive 1:</source>
        <translation>Vida útil consumida da unidade 1:</translation>
    </message>
    <message>
        <source>Service life of Drive 2:</source>
        <translation>Vida útil consumida da unidade 2:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>Número de série:</translation>
    </message>
    <message>
        <source>Version Information</source>
        <translation>Informações de versão</translation>
    </message>
    <message>
        <source>Autoloader:</source>
        <translation>Carregador automático:</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Impressora:</translation>
    </message>
    <message>
        <source>Drive 1:</source>
        <translation>Unidade 1:</translation>
    </message>
    <message>
        <source>Drive 2:</source>
        <translation>Unidade 2:</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Servidor:</translation>
    </message>
    <message>
        <source>Ulmar Disc Net Administrator:</source>
        <translation>Ulmar Disc Net Administrator:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>propertyDialogEx</name>
    <message>
        <source>Nozzle Check</source>
        <translation>Verificação dos jatos</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Limpeza das cabeças</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Do not print</source>
        <translation>Não imprimir</translation>
    </message>
    <message>
        <source>Service life of Drive:</source>
        <translation>Vida útil consumida da unidade:</translation>
    </message>
    <message>
        <source>Drive:</source>
        <translation>Unidade:</translation>
    </message>
    <message>
        <source>Properties - </source>
        <translation>Propriedades - </translation>
    </message>
    <message>
        <source>Please type a name for the output device.</source>
        <translation>Digite um nome para o dispositivo de saída.</translation>
    </message>
    <message>
        <source>&quot;\&quot; cannot be used in the output device name.</source>
        <translation>O caractere “\” não pode ser usado no nome do dispositivo de saída.</translation>
    </message>
    <message>
        <source>The same name is already registered.
Please use a different name.</source>
        <translation>Este nome já está registrado.
Use um nome diferente.</translation>
    </message>
    <message>
        <source>The settings could not be changed because registration of the Publish Mode in the output device settings failed.
Please change the settings after checking the power supply of the output device and the connection.</source>
        <translation>Não foi possível alterar as configurações porque o modo de publicação não pôde ser registrado no dispositivo de saída.
Verifique a alimentação e a conexão do dispositivo de saída e, em seguida, altere as configurações.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>Não foi possível alterar a configuração.</translation>
    </message>
    <message>
        <source>This output device is processing jobs and the settings could not be changed.
Please change it after all jobs are completed.</source>
        <translation>O dispositivo de saída está processando trabalhos, por isso não foi possível alterar as configurações.
Altere-as depois que todos os trabalhos terminarem.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Output Stacker</source>
        <translation>Empilhador de saída</translation>
    </message>
</context>
<context>
    <name>settingDialog</name>
    <message>
        <source>Common Setting for Publishing</source>
        <translation>Configurações comuns de publicação</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Working Folder</source>
        <translation>Pasta de trabalho</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Procurar…</translation>
    </message>
    <message>
        <source>Notification Settings</source>
        <translation>Notificação</translation>
    </message>
    <message>
        <source>Notification Method</source>
        <translation>Método de notificação</translation>
    </message>
    <message>
        <source>Beep when a job is finished, or when the source stacker is empty (RT-300III)</source>
        <translation>Sinal sonoro quando um trabalho terminar ou o empilhador de entrada estiver vazio (RT-300III)</translation>
    </message>
    <message>
        <source>Notification when a job is finished</source>
        <translation>Notificação ao término de um trabalho</translation>
    </message>
    <message>
        <source>Notify after each job is finished</source>
        <translation>Notificar ao término de cada trabalho</translation>
    </message>
    <message>
        <source>Notify after all jobs are finished</source>
        <translation>Notificar ao término de todos os trabalhos</translation>
    </message>
    <message>
        <source>Network CD/DVD/BD Publisher</source>
        <translation>Publicador CD/DVD/BD em rede</translation>
    </message>
    <message>
        <source>Compatibility Approval Settings</source>
        <translation>Autorização de compatibilidade</translation>
    </message>
    <message>
        <source>Allow security risks and approve the use of older versions of network CD/DVD/BD publishers</source>
        <translation>Autorizar versões antigas de publicadores CD/DVD/BD em rede apesar dos riscos de segurança</translation>
    </message>
    <message>
        <source>When this is selected, you can use the following devices.</source>
        <translation>Se esta opção estiver selecionada, é possível usar os seguintes dispositivos.</translation>
    </message>
    <message>
        <source>RT-300NII:</source>
        <translation>RT-300NII:</translation>
    </message>
    <message>
        <source>Server versions older than 3.30</source>
        <translation>Versões do servidor anteriores à 3.30</translation>
    </message>
    <message>
        <source>It is strongly recommended that you upgrade to the latest software version to handle vulnerabilities.</source>
        <translation>É altamente recomendável atualizar para a versão mais recente do software para corrigir vulnerabilidades.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>settingDialogEx</name>
    <message>
        <source>Select working folder.</source>
        <translation>Selecionar pasta de trabalho</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The working folder could not be changed because there is a job being processed on this computer.
Please change the working folder after all jobs are finished.</source>
        <translation>Não foi possível alterar a pasta de trabalho porque há um trabalho sendo processado neste computador.
Altere a pasta de trabalho depois que todos os trabalhos terminarem.</translation>
    </message>
    <message>
        <source>The specified folder cannot be set as the working folder.
Specify a different folder.</source>
        <translation>A pasta especificada não pode ser definida como pasta de trabalho.
Especifique uma pasta diferente.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>Não foi possível alterar a configuração.</translation>
    </message>
</context>
</TS>
